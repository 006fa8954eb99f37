#include "presentation/RelativeDate.h"

#include <gtest/gtest.h>

#include <string>

#include "fakes/FakeLocaleText.h"
#include "fakes/ManualClock.h"

namespace larkspan::presentation {

namespace {

using namespace std::chrono_literals;

struct RelativeDateRow {
    std::chrono::minutes elapsed;
    std::string text;
};

class RelativeDate : public testing::TestWithParam<RelativeDateRow> {};

TEST_P(RelativeDate, NamesTheDaysAroundNowAndGivesTheDateOfAllOthers)
{
    const auto now = fakes::ManualClock().now();
    EXPECT_EQ(relativeDate(fakes::FakeLocaleText(), now - GetParam().elapsed, now), GetParam().text);
}

// Now is nine in the morning of the twentieth.
INSTANTIATE_TEST_SUITE_P(EachDay, RelativeDate,
    testing::Values(RelativeDateRow{0min, "Today"}, RelativeDateRow{9h, "Today"},
        RelativeDateRow{-14h - 59min, "Today"}, RelativeDateRow{9h + 1min, "Yesterday"},
        RelativeDateRow{33h, "Yesterday"}, RelativeDateRow{33h + 1min, "2026-11-18"}, RelativeDateRow{-15h, "Tomorrow"},
        RelativeDateRow{-39h, "2026-11-22"}));

TEST(RelativeDateOfAZone, TurnsAtTheUsersMidnightAndNotAtUTCs)
{
    fakes::FakeLocaleText locale;
    locale.offset = 2h;
    const support::Time justAfterMidnight = std::chrono::sys_days{std::chrono::year{2026} / 11 / 19} + 22h;
    EXPECT_EQ(relativeDate(locale, justAfterMidnight, fakes::ManualClock().now()), "Today");
    EXPECT_EQ(relativeDate(locale, justAfterMidnight - 1min, fakes::ManualClock().now()), "Yesterday");
}

}  // namespace

}  // namespace larkspan::presentation
