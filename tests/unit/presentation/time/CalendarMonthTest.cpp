#include "presentation/time/CalendarMonth.h"

#include <gtest/gtest.h>

#include <chrono>

namespace larkspan::presentation {

namespace {

using namespace std::chrono_literals;
using std::chrono::local_days;
using std::chrono::Monday;
using std::chrono::Saturday;
using std::chrono::Sunday;

TEST(WeeksOfAMonth, BeginWithTheWeekOfItsFirstDayAndFollowDayByDay)
{
    const auto weeks = weeksOf(2026y / std::chrono::November, Monday);
    EXPECT_EQ(weeks.front(), local_days{2026y / 10 / 26});
    EXPECT_EQ(weeks.at(6), local_days{2026y / 11 / 1}) << "a Sunday";
    EXPECT_EQ(weeks.back(), local_days{2026y / 12 / 6});
}

TEST(WeeksOfAMonth, BeginOnTheDayThatTheUsersWeekBeginsOn)
{
    EXPECT_EQ(weeksOf(2026y / std::chrono::November, Sunday).front(), local_days{2026y / 11 / 1});
    EXPECT_EQ(weeksOf(2026y / std::chrono::November, Saturday).front(), local_days{2026y / 10 / 31});
}

TEST(WeeksOfAMonth, HoldEveryDayOfEveryMonthWhereverItsWeekBegins)
{
    for (const auto first : {Saturday, Sunday, Monday}) {
        for (auto month = 2023y / std::chrono::January; month < 2029y / std::chrono::January;
            month += std::chrono::months(1)) {
            const auto weeks = weeksOf(month, first);
            EXPECT_LE(weeks.front(), local_days(month / 1));
            EXPECT_GE(weeks.back(), local_days(month / std::chrono::last));
            EXPECT_EQ(std::chrono::weekday(weeks.front()), first);
        }
    }
}

TEST(BeginOfAWeek, IsTheDayItselfOnItsFirstDay)
{
    EXPECT_EQ(beginOfWeek(local_days{2026y / 11 / 16}, Monday), local_days{2026y / 11 / 16});
    EXPECT_EQ(beginOfWeek(local_days{2026y / 11 / 22}, Monday), local_days{2026y / 11 / 16});
    EXPECT_EQ(beginOfWeek(local_days{2026y / 11 / 22}, Sunday), local_days{2026y / 11 / 22});
}

TEST(MonthsLater, KeepTheDayOrTakeTheLastOneOfAShorterMonth)
{
    EXPECT_EQ(monthsLater(local_days{2026y / 11 / 20}, 1), local_days{2026y / 12 / 20});
    EXPECT_EQ(monthsLater(local_days{2026y / 11 / 20}, -12), local_days{2025y / 11 / 20});
    EXPECT_EQ(monthsLater(local_days{2026y / 1 / 31}, 1), local_days{2026y / 2 / 28});
    EXPECT_EQ(monthsLater(local_days{2028y / 1 / 31}, 1), local_days{2028y / 2 / 29});
    EXPECT_EQ(monthsLater(local_days{2026y / 12 / 31}, 2), local_days{2027y / 2 / 28});
}

TEST(Calendar, EndsADayShortOfTheYearsThatADateCanName)
{
    EXPECT_EQ(monthsLater(local_days{9999y / 12 / 5}, 1), local_days{9999y / 12 / 5});
    EXPECT_EQ(monthsLater(local_days{9999y / 11 / 30}, 5), local_days{9999y / 12 / 30});
    EXPECT_EQ(monthsLater(local_days{1y / 1 / 5}, -1), local_days{1y / 1 / 5});
    EXPECT_EQ(withinCalendar(local_days{std::chrono::year{10'000} / 1 / 1}), lastDay);
    EXPECT_EQ(withinCalendar(local_days{0y / 12 / 31}), firstDay);
    EXPECT_EQ(withinCalendar(std::chrono::year{10'000} / std::chrono::March), 9999y / std::chrono::December);
}

}  // namespace

}  // namespace larkspan::presentation
