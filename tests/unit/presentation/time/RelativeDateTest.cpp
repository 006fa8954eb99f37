#include "presentation/time/RelativeDate.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "fakes/ManualClock.h"

namespace larkspan::presentation {

namespace {

using namespace std::chrono_literals;

struct RelativeDateRow {
    std::chrono::milliseconds elapsed;
    std::string text;
};

class RelativeDate : public testing::TestWithParam<RelativeDateRow> {};

TEST_P(RelativeDate, IsTheDistanceInTheLargestUnitThatFills)
{
    const auto now = fakes::ManualClock().now();
    EXPECT_EQ(relativeDate(now - GetParam().elapsed, now), GetParam().text);
}

constexpr auto day = 24h;

INSTANTIATE_TEST_SUITE_P(EachBound, RelativeDate,
    testing::Values(RelativeDateRow{0ms, "now"}, RelativeDateRow{999ms, "now"}, RelativeDateRow{-999ms, "now"},
        RelativeDateRow{1s, "1 second ago"}, RelativeDateRow{59'999ms, "59 seconds ago"},
        RelativeDateRow{60s, "1 minute ago"}, RelativeDateRow{119s, "1 minute ago"},
        RelativeDateRow{5min, "5 minutes ago"}, RelativeDateRow{1h - 1ms, "59 minutes ago"},
        RelativeDateRow{1h, "1 hour ago"}, RelativeDateRow{2h, "2 hours ago"}, RelativeDateRow{23h, "23 hours ago"},
        RelativeDateRow{day - 1ms, "23 hours ago"}, RelativeDateRow{day, "1 day ago"},
        RelativeDateRow{3 * day, "3 days ago"}, RelativeDateRow{7 * day - 1ms, "6 days ago"},
        RelativeDateRow{7 * day, "1 week ago"}, RelativeDateRow{30 * day, "4 weeks ago"},
        RelativeDateRow{31 * day, "1 month ago"}, RelativeDateRow{365 * day, "11 months ago"},
        RelativeDateRow{366 * day, "1 year ago"}, RelativeDateRow{3'660 * day, "10 years ago"},
        RelativeDateRow{-2h, "in 2 hours"}, RelativeDateRow{-1h, "in 1 hour"}, RelativeDateRow{-1s, "in 1 second"},
        RelativeDateRow{-3 * day, "in 3 days"}));

}  // namespace

}  // namespace larkspan::presentation
