#include "presentation/time/CalendarMonth.h"

#include <algorithm>

namespace larkspan::presentation {

using std::chrono::days;
using std::chrono::local_days;
using std::chrono::weekday;
using std::chrono::year_month;

local_days beginOfWeek(local_days day, weekday firstDayOfWeek)
{
    return day - (weekday(day) - firstDayOfWeek);
}

std::array<local_days, 42> weeksOf(year_month month, weekday firstDayOfWeek)
{
    std::array<local_days, 42> grid;
    auto day = beginOfWeek(local_days(month / 1), firstDayOfWeek);
    for (auto& each : grid) {
        each = day;
        day += days(1);
    }
    return grid;
}

year_month monthOf(local_days day)
{
    const std::chrono::year_month_day date(day);
    return date.year() / date.month();
}

local_days monthsLater(local_days day, int months)
{
    const auto month = withinCalendar(monthOf(day) + std::chrono::months(months));
    const auto last = (month / std::chrono::last).day();
    return withinCalendar(local_days(month / std::min(std::chrono::year_month_day(day).day(), last)));
}

local_days withinCalendar(local_days day)
{
    return std::clamp(day, firstDay, lastDay);
}

year_month withinCalendar(year_month month)
{
    return std::clamp(month, monthOf(firstDay), monthOf(lastDay));
}

}  // namespace larkspan::presentation
