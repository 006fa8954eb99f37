#include "support/Trimming.h"

#include <gtest/gtest.h>

#include <string_view>

namespace larkspan::support {

namespace {

struct TrimRow {
    std::string_view text;
    std::string_view trimmed;
};

class Trimmed : public testing::TestWithParam<TrimRow> {};

TEST_P(Trimmed, LosesTheSpaceAtItsEndsAndNothingElse)
{
    EXPECT_EQ(trimmed(GetParam().text), GetParam().trimmed);
}

INSTANTIATE_TEST_SUITE_P(Texts, Trimmed,
    testing::Values(TrimRow{"", ""}, TrimRow{"key", "key"}, TrimRow{"  key\n", "key"}, TrimRow{"\t\r\n\v\f ", ""},
        TrimRow{"a key", "a key"}, TrimRow{"\u00a0key\u2003", "key"}, TrimRow{"\u200bkey\u2028", "key"},
        TrimRow{"\u3000\u205f\u202f\u1680\u0085key", "key"}, TrimRow{"\u00e9", "\u00e9"},
        TrimRow{"\xA0key", "\xA0key"}));

}  // namespace

}  // namespace larkspan::support
