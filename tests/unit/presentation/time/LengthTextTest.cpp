#include "presentation/time/LengthText.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "fakes/FakeLocaleText.h"
#include "fakes/ManualClock.h"
#include "presentation/time/DateTimePicker.h"

namespace larkspan::presentation {

namespace {

using namespace std::chrono_literals;
using std::chrono::days;
using std::chrono::minutes;
using std::chrono::seconds;
using std::chrono::sys_days;

struct LengthRow {
    minutes length;
    std::string text;
};

class LengthText : public testing::TestWithParam<LengthRow> {};

TEST_P(LengthText, NamesEachUnitThatIsNotZero)
{
    EXPECT_EQ(lengthText(GetParam().length), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(EachForm, LengthText,
    testing::Values(LengthRow{1min, "1 minute"}, LengthRow{2min, "2 minutes"}, LengthRow{59min, "59 minutes"},
        LengthRow{60min, "1 hour"}, LengthRow{61min, "1 hour 1 minute"}, LengthRow{90min, "1 hour 30 minutes"},
        LengthRow{2h, "2 hours"}, LengthRow{23h + 59min, "23 hours 59 minutes"}, LengthRow{24h, "1 day"},
        LengthRow{24h + 1min, "1 day 1 minute"}, LengthRow{25h, "1 day 1 hour"},
        LengthRow{days(3) + 2h + 5min, "3 days 2 hours 5 minutes"}, LengthRow{days(3'652'000), "3652000 days"}));

INSTANTIATE_TEST_SUITE_P(WithoutALength, LengthText,
    testing::Values(LengthRow{0min, "The end is at the start."}, LengthRow{-1min, "The end is before the start."},
        LengthRow{-days(2), "The end is before the start."}));

struct MomentsRow {
    seconds start;
    seconds end;
    minutes length;
};

class LengthBetweenMoments : public testing::TestWithParam<MomentsRow> {};

TEST_P(LengthBetweenMoments, IsThatBetweenTheMinutesThatAreShown)
{
    const support::Time hour = sys_days(2026y / 11 / 20) + 9h;
    EXPECT_EQ(lengthBetween(hour + GetParam().start, hour + GetParam().end), GetParam().length);
}

INSTANTIATE_TEST_SUITE_P(EachKind, LengthBetweenMoments,
    testing::Values(MomentsRow{37s, 1h + 37s, 1h}, MomentsRow{37s, 1h, 1h}, MomentsRow{0s, 1h + 37s, 1h},
        MomentsRow{37s, 0s, 0min}, MomentsRow{0s, 59s, 0min}, MomentsRow{59s, 60s, 1min}, MomentsRow{0s, -1s, -1min},
        MomentsRow{37s, -30min, -30min}));

/// Clocks that change at two in the morning of 29 March 2026.
class LengthOverAChangeOfClocks : public testing::Test {
protected:
    LengthOverAChangeOfClocks()
    {
        locale.offset = 1h;
        locale.change = sys_days(2026y / 3 / 29) + 1h;
    }

    /// From ten in the evening before to the same time of the next day.
    std::string length()
    {
        const DateTimePicker start({clock, locale}, sys_days(2026y / 3 / 28) + 21h);
        DateTimePicker end({clock, locale}, *start.moment);
        end.moveDays(1);
        EXPECT_EQ(end.time(), start.time());
        return lengthText(lengthBetween(*start.moment, *end.moment));
    }

    fakes::ManualClock clock;
    fakes::FakeLocaleText locale;
};

TEST_F(LengthOverAChangeOfClocks, IsTheTimeThatPassesAndNotThatOnTheClocks)
{
    locale.offsetAfterChange = 2h;
    EXPECT_EQ(length(), "23 hours");
    locale.offsetAfterChange = 0h;
    EXPECT_EQ(length(), "1 day 1 hour");
}

}  // namespace

}  // namespace larkspan::presentation
