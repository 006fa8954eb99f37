#include "support/Utf8.h"

#include <gtest/gtest.h>

#include <string_view>

namespace larkspan::support {

namespace {

using namespace std::string_view_literals;

class WellFormed : public testing::TestWithParam<std::string_view> {};
class IllFormed : public testing::TestWithParam<std::string_view> {};

TEST_P(WellFormed, IsValid)
{
    EXPECT_TRUE(isValidUtf8(GetParam()));
}

TEST_P(IllFormed, IsNotValid)
{
    EXPECT_FALSE(isValidUtf8(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Utf8, WellFormed,
    testing::Values(""sv, "plain"sv, "\0"sv, "\u00e9"sv, "\u2019"sv, "\U0001F426"sv, "\xED\x9F\xBF"sv, "\xEE\x80\x80"sv,
        "\xF4\x8F\xBF\xBF"sv));

INSTANTIATE_TEST_SUITE_P(Utf8, IllFormed,
    testing::Values("\x80"sv, "\xC3"sv, "\xC3\x28"sv, "\xC0\xAF"sv, "\xE0\x80\xAF"sv, "\xED\xA0\x80"sv,
        "\xF0\x80\x80\xAF"sv, "\xF4\x90\x80\x80"sv, "\xFF"sv, "\xF0\x9F\x90"sv, "caf\xE9"sv));

}  // namespace

}  // namespace larkspan::support
