#include "presentation/shapes/TimelineRow.h"

#include <gtest/gtest.h>

#include "fakes/FakeLocaleText.h"
#include "fakes/ManualClock.h"

namespace larkspan::presentation {

namespace {

using namespace std::chrono_literals;

TEST(RowOfATimeline, HasDateAndTimeApartInTheUsersZone)
{
    fakes::FakeLocaleText locale;
    locale.offset = 16h;
    const auto row = timelineRow("plus.circle", "Created", fakes::ManualClock().now() + 5min, locale);
    EXPECT_EQ(row, (TimelineRow{.symbol = "plus.circle", .label = "Created", .date = "2026-11-21", .time = "01:05"}));
}

}  // namespace

}  // namespace larkspan::presentation
