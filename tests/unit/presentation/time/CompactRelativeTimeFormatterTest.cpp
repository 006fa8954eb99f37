#include "presentation/time/CompactRelativeTimeFormatter.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace larkspan::presentation {

namespace {

using namespace std::chrono_literals;

struct RelativeTextRow {
    std::chrono::milliseconds elapsed;
    std::string text;
};

class RelativeText : public testing::TestWithParam<RelativeTextRow> {};

TEST_P(RelativeText, IsCutNeverRounded)
{
    const auto [elapsed, text] = GetParam();
    const support::Time now{1'000'000'000s};
    EXPECT_EQ(CompactRelativeTimeFormatter::relativeText(now - elapsed, now), text);
}

INSTANTIATE_TEST_SUITE_P(EachBoundary, RelativeText,
    testing::Values(RelativeTextRow{-5s, "just now"}, RelativeTextRow{0s, "just now"},
        RelativeTextRow{9'990ms, "just now"}, RelativeTextRow{10s, "10s ago"}, RelativeTextRow{59'900ms, "59s ago"},
        RelativeTextRow{60s, "1m ago"}, RelativeTextRow{119s, "1m ago"}, RelativeTextRow{3'599s, "59m ago"},
        RelativeTextRow{3'600s, "1h ago"}, RelativeTextRow{86'399s, "23h ago"}, RelativeTextRow{86'400s, "1d ago"},
        RelativeTextRow{172'799s, "1d ago"}, RelativeTextRow{24h * 1000, "1000d ago"}));

}  // namespace

}  // namespace larkspan::presentation
