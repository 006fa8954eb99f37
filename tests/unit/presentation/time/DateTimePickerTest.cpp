#include "presentation/time/DateTimePicker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "fakes/BerlinTime.h"
#include "fakes/ManualClock.h"

namespace larkspan::presentation {

namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;
using Words = std::vector<std::string>;

/// On Friday, 20 November 2026 at 09:00; the picker is set to 09:30:45.
class PickerOfAMoment : public testing::Test {
protected:
    std::string chosen() const { return picker.date() + " " + picker.time(); }

    const CalendarDay& day(const std::string& name)
    {
        days = picker.days();
        const auto found = std::ranges::find(days, name, &CalendarDay::name);
        if (found == days.end()) throw std::logic_error(name + " is not in sight");
        return *found;
    }

    void choose(const std::string& name) { picker.chooseDay(day(name).id); }

    fakes::ManualClock clock;
    fakes::FakeLocaleText locale;
    const support::Time initial = clock.time + 30min + 45s;
    DateTimePicker picker{{clock, locale}, initial};
    std::vector<CalendarDay> days;
};

TEST_F(PickerOfAMoment, ShowsItsDateItsTimeAndItsMonth)
{
    EXPECT_EQ(chosen(), "2026-11-20 09:30");
    EXPECT_EQ(picker.hour(), "09");
    EXPECT_EQ(picker.minute(), "30");
    EXPECT_EQ(picker.dayHalf(), "");
    EXPECT_EQ(picker.month(), "11/2026");
    EXPECT_EQ(picker.weekdays(), (Words{"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"}));
    locale.weekBegin = std::chrono::Sunday;
    EXPECT_EQ(picker.weekdays().front(), "Sun");
}

TEST_F(PickerOfAMoment, HasSixWeeksWithTodayAndTheChosenDayMarked)
{
    clock.time += 24h;
    EXPECT_EQ(picker.days().size(), 42u);
    EXPECT_EQ(picker.days().front().number, "26");
    const CalendarDay anyDay{.id = day("2026-11-02").id, .number = "2", .name = "2026-11-02", .isInMonth = true};
    EXPECT_EQ(day("2026-11-02"), anyDay);
    EXPECT_TRUE(day("2026-11-20").isChosen);
    EXPECT_TRUE(day("2026-11-21").isToday);
    EXPECT_FALSE(day("2026-10-31").isInMonth);
    EXPECT_EQ(std::ranges::count(picker.days(), true, &CalendarDay::isChosen), 1);
    EXPECT_EQ(std::ranges::count(picker.days(), true, &CalendarDay::isToday), 1);
}

TEST_F(PickerOfAMoment, KeepsAMomentThatNobodyTouchedToTheSecond)
{
    EXPECT_EQ(*picker.moment, initial);
    EXPECT_FALSE(picker.isChanged());
    picker.browseMonths(3);
    picker.typeHour("");
    picker.typeMinute("a");
    EXPECT_EQ(*picker.moment, initial);
}

TEST_F(PickerOfAMoment, ChoosesADayAtTheSameTimeOfDayAndAWholeMinute)
{
    choose("2026-11-03");
    EXPECT_EQ(chosen(), "2026-11-03 09:30");
    EXPECT_EQ(*picker.moment, initial - 17 * 24h - 45s);
    EXPECT_TRUE(picker.isChanged());
}

TEST_F(PickerOfAMoment, FollowsADayOfANeighbouringMonthThere)
{
    choose("2026-12-06");
    EXPECT_EQ(picker.month(), "12/2026");
}

TEST_F(PickerOfAMoment, LooksThroughOtherMonthsWithoutChoosing)
{
    picker.browseMonths(2);
    EXPECT_EQ(picker.month(), "1/2027");
    EXPECT_EQ(std::ranges::count(picker.days(), true, &CalendarDay::isChosen), 0);
    picker.browseMonths(-14);
    EXPECT_EQ(picker.month(), "11/2025");
    EXPECT_EQ(chosen(), "2026-11-20 09:30");
}

TEST_F(PickerOfAMoment, MovesByDaysWeeksMonthsAndToTheEndsOfTheWeek)
{
    picker.moveDays(-1);
    EXPECT_EQ(chosen(), "2026-11-19 09:30");
    picker.moveDays(14);
    EXPECT_EQ(chosen(), "2026-12-03 09:30");
    EXPECT_EQ(picker.month(), "12/2026");
    picker.moveToBeginOfWeek();
    EXPECT_EQ(chosen(), "2026-11-30 09:30");
    EXPECT_EQ(picker.month(), "11/2026");
    picker.moveToEndOfWeek();
    EXPECT_EQ(chosen(), "2026-12-06 09:30");
    picker.moveMonths(-10);
    EXPECT_EQ(chosen(), "2026-02-06 09:30");
}

TEST_F(PickerOfAMoment, MovesFromTheFirstDayOfAMonthInWhichTheChosenOneIsNotInSight)
{
    picker.browseMonths(5);
    picker.moveDays(1);
    EXPECT_EQ(chosen(), "2027-04-02 09:30");
    picker.browseMonths(-1);
    picker.moveDays(1);
    EXPECT_EQ(chosen(), "2027-04-03 09:30") << "it is in sight at the end of March";
    picker.browseMonths(1);
    picker.moveToEndOfWeek();
    EXPECT_EQ(chosen(), "2027-05-02 09:30");
}

TEST_F(PickerOfAMoment, ComesBackToTheMonthOfTheChosenDayWhenItsTimeIsTyped)
{
    picker.browseMonths(5);
    picker.typeMinute("0");
    EXPECT_EQ(picker.month(), "11/2026");
}

TEST_F(PickerOfAMoment, TakesHoursAndMinutesAsTheyAreTyped)
{
    picker.typeHour("1");
    EXPECT_EQ(chosen(), "2026-11-20 01:30");
    picker.typeHour("17");
    picker.typeMinute("5");
    EXPECT_EQ(chosen(), "2026-11-20 17:05");
    EXPECT_EQ(*picker.moment, clock.time + 8h + 5min) << "without seconds";
    picker.typeHour("25");
    picker.typeMinute("60");
    EXPECT_EQ(chosen(), "2026-11-20 17:05") << "neither is a time";
}

TEST_F(PickerOfAMoment, StepsThroughTheHoursOverMidnight)
{
    picker.moveTime(1h);
    EXPECT_EQ(chosen(), "2026-11-20 10:30");
    picker.moveTime(-11h);
    EXPECT_EQ(chosen(), "2026-11-19 23:30");
    picker.moveTime(30min);
    EXPECT_EQ(chosen(), "2026-11-20 00:00");
}

TEST_F(PickerOfAMoment, OfTwelveHoursNamesTheHalfOfTheDayAndSwitchesIt)
{
    locale.halves = {"AM", "PM"};
    EXPECT_EQ(picker.hour() + " " + picker.dayHalf(), "9 AM");
    picker.switchDayHalf();
    EXPECT_EQ(chosen(), "2026-11-20 21:30");
    EXPECT_EQ(picker.hour() + " " + picker.dayHalf(), "9 PM");
    picker.typeHour("12");
    EXPECT_EQ(chosen(), "2026-11-20 12:30");
    picker.switchDayHalf();
    EXPECT_EQ(chosen(), "2026-11-20 00:30");
}

TEST_F(PickerOfAMoment, BeginsAnewWithAnotherMoment)
{
    picker.moveMonths(3);
    picker.show(initial + 24h);
    EXPECT_FALSE(picker.isChanged());
    EXPECT_EQ(picker.month(), "11/2026");
    EXPECT_EQ(*picker.moment, initial + 24h);
    picker.moveDays(1);
    picker.moveDays(-1);
    EXPECT_TRUE(picker.isChanged()) << "the seconds are gone";
}

TEST_F(PickerOfAMoment, DoesNotLeaveTheYearsThatADateCanName)
{
    picker.show(sys_days{9999y / 12 / 30} + 23h + 30min);
    picker.moveDays(1);
    picker.moveMonths(1);
    picker.moveTime(1h);
    picker.browseMonths(1);
    EXPECT_EQ(chosen(), "9999-12-30 23:30");
    EXPECT_EQ(picker.month(), "12/9999");
    picker.show(sys_days{1y / 1 / 2});
    picker.moveTime(-1min);
    picker.moveDays(-7);
    picker.browseMonths(-1);
    EXPECT_EQ(chosen(), "0001-01-02 00:00");
    EXPECT_EQ(picker.month(), "1/1");
}

TEST_F(PickerOfAMoment, TellsItsObserversOfTheMonthAndTheMoment)
{
    int changes = 0;
    const auto subscription = picker.objectWillChange([&changes] { ++changes; });
    picker.browseMonths(1);
    EXPECT_EQ(changes, 1);
    picker.typeHour("10");
    EXPECT_GT(changes, 1);
}

struct ZoneRow {
    std::string name;
    std::chrono::minutes offset;
    std::string text;
};

class ZoneOfAPicker : public PickerOfAMoment, public testing::WithParamInterface<ZoneRow> {};

TEST_P(ZoneOfAPicker, IsNamedWithWhatItIsAheadOfUTC)
{
    locale.zone = GetParam().name;
    locale.offset = GetParam().offset;
    EXPECT_EQ(picker.zone(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(EachKind, ZoneOfAPicker,
    testing::Values(ZoneRow{"UTC", 0min, "UTC"}, ZoneRow{"GMT", 0min, "GMT (UTC)"}, ZoneRow{"CET", 1h, "CET (UTC+1)"},
        ZoneRow{"IST", 5h + 30min, "IST (UTC+5:30)"}, ZoneRow{"NST", -(3h + 30min), "NST (UTC-3:30)"},
        ZoneRow{"-03", -3h, "UTC-3"}, ZoneRow{"+0545", 5h + 45min, "UTC+5:45"}, ZoneRow{"", -11h, "UTC-11"}));

TEST(PickerOverTheBeginOfSummerTime, SkipsTheHourThatNoClockShowsAndNamesTheNewZone)
{
    const fakes::ManualClock clock;
    const auto berlin = fakes::berlinInSpring();
    const support::Time midnight = sys_days{2026y / 3 / 28} + 23h;
    DateTimePicker picker({clock, berlin}, midnight + 90min);
    EXPECT_EQ(picker.time() + " " + picker.zone(), "01:30 CET (UTC+1)");
    picker.moveTime(1h);
    EXPECT_EQ(picker.time() + " " + picker.zone(), "03:30 CEST (UTC+2)");
    picker.moveTime(-1h);
    EXPECT_EQ(picker.time(), "01:30");
    picker.typeHour("2");
    EXPECT_EQ(picker.time(), "03:30") << "as clocks do at that moment";
    EXPECT_EQ(*picker.moment, midnight + 150min);
}

TEST(PickerOverTheBeginOfSummerTime, KeepsTheTimeOfDayFromDayToDay)
{
    const fakes::ManualClock clock;
    const auto berlin = fakes::berlinInSpring();
    DateTimePicker picker({clock, berlin}, sys_days{2026y / 3 / 28} + 8h);
    EXPECT_EQ(picker.time(), "09:00");
    picker.moveDays(1);
    EXPECT_EQ(picker.time(), "09:00");
    EXPECT_EQ(*picker.moment, sys_days{2026y / 3 / 29} + 7h) << "that day is an hour shorter";
}

TEST(PickerOverTheEndOfSummerTime, StepsThroughTheHourThatComesTwiceAndStaysInTheSecondWhileTyped)
{
    const fakes::ManualClock clock;
    const auto berlin = fakes::berlinInAutumn();
    const support::Time midnight = sys_days{2026y / 10 / 24} + 22h;
    DateTimePicker picker({clock, berlin}, midnight + 1h);
    picker.typeHour("2");
    EXPECT_EQ(picker.time() + " " + picker.zone(), "02:00 CEST (UTC+2)");
    picker.moveTime(1h);
    EXPECT_EQ(picker.time() + " " + picker.zone(), "02:00 CET (UTC+1)");
    picker.typeMinute("45");
    EXPECT_EQ(picker.time() + " " + picker.zone(), "02:45 CET (UTC+1)");
    EXPECT_EQ(*picker.moment, midnight + 3h + 45min);
}

}  // namespace

}  // namespace larkspan::presentation
