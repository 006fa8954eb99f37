#include "presentation/time/DateTimePicker.h"

#include <cctype>

#include "presentation/time/CalendarMonth.h"
#include "presentation/time/LocalMoment.h"

namespace larkspan::presentation {

using namespace std::chrono_literals;
using std::chrono::floor;
using std::chrono::hours;
using std::chrono::local_days;
using std::chrono::minutes;
using support::Time;

namespace {

/// The offset as "UTC", "UTC+1" or "UTC-3:30".
std::string offsetText(minutes ahead)
{
    std::string text = "UTC";
    if (ahead == 0min) return text;
    const auto size = abs(ahead);
    text += (ahead > 0min ? "+" : "-") + std::to_string(size / 1h);
    if (size % 1h != 0min) text += ":" + minuteText(static_cast<int>((size % 1h).count()));
    return text;
}

}  // namespace

DateTimePicker::DateTimePicker(Ports ports, Time first)
    : moment(*this, first)
    , shownMonth(*this, monthOf(withinCalendar(ports.locale.day(first))))
    , ports_(ports)
    , initial_(first)
{
}

void DateTimePicker::show(Time other)
{
    initial_ = other;
    moment = other;
    shownMonth = monthOf(withinCalendar(day()));
}

std::string DateTimePicker::zone() const
{
    const auto offset = offsetText(floor<minutes>(ports_.locale.utcOffset(*moment)));
    const auto name = ports_.locale.zoneName(*moment);
    // A name without letters is only a less clear form of the offset.
    const bool isNamed = !name.empty() && std::isalpha(static_cast<unsigned char>(name.front())) != 0;
    return !isNamed || name == offset ? offset : name + " (" + offset + ")";
}

std::vector<std::string> DateTimePicker::weekdays() const
{
    std::vector<std::string> names;
    for (int column = 0; column < 7; ++column) {
        names.push_back(ports_.locale.weekdayName(ports_.locale.firstDayOfWeek() + std::chrono::days(column)));
    }
    return names;
}

std::vector<CalendarDay> DateTimePicker::days() const
{
    const auto today = ports_.locale.day(ports_.clock.now());
    const auto chosen = day();
    std::vector<CalendarDay> cells;
    for (const auto each : weeksOf(*shownMonth, ports_.locale.firstDayOfWeek())) {
        cells.push_back({.id = static_cast<int>(each.time_since_epoch().count()),
            .number = std::to_string(static_cast<unsigned>(std::chrono::year_month_day(each).day())),
            .name = ports_.locale.dateOnly(momentAt(ports_.locale, LocalTime(each + 12h), *moment)),
            .isInMonth = monthOf(each) == *shownMonth,
            .isToday = each == today,
            .isChosen = each == chosen});
    }
    return cells;
}

void DateTimePicker::browseMonths(int count)
{
    shownMonth = withinCalendar(*shownMonth + std::chrono::months(count));
}

void DateTimePicker::chooseDay(int id)
{
    choose(local_days(std::chrono::days(id)), timeOfDay());
}

local_days DateTimePicker::visibleDay() const
{
    const auto weeks = weeksOf(*shownMonth, ports_.locale.firstDayOfWeek());
    return day() >= weeks.front() && day() <= weeks.back() ? day() : local_days(*shownMonth / 1);
}

void DateTimePicker::moveDays(int count)
{
    choose(visibleDay() + std::chrono::days(count), timeOfDay());
}

void DateTimePicker::moveMonths(int count)
{
    choose(monthsLater(visibleDay(), count), timeOfDay());
}

void DateTimePicker::moveToBeginOfWeek()
{
    choose(beginOfWeek(visibleDay(), ports_.locale.firstDayOfWeek()), timeOfDay());
}

void DateTimePicker::moveToEndOfWeek()
{
    choose(beginOfWeek(visibleDay(), ports_.locale.firstDayOfWeek()) + std::chrono::days(6), timeOfDay());
}

ClockFace DateTimePicker::face() const
{
    return ports_.locale.dayHalves() ? ClockFace::twelveHours : ClockFace::twentyFourHours;
}

minutes DateTimePicker::timeOfDay() const
{
    return floor<minutes>(ports_.locale.localTime(*moment) - day());
}

std::string DateTimePicker::hour() const
{
    return hourText(hourOfDay(), face());
}

std::string DateTimePicker::minute() const
{
    return minuteText(minuteOfHour());
}

std::string DateTimePicker::dayHalf() const
{
    const auto halves = ports_.locale.dayHalves();
    if (!halves) return "";
    return hourOfDay() < 12 ? halves->beforeNoon : halves->afterNoon;
}

void DateTimePicker::typeHour(std::string_view digits)
{
    const auto typed = typedHour(digits, hourOfDay(), face());
    if (typed) choose(day(), hours(*typed) + minutes(minuteOfHour()));
}

void DateTimePicker::typeMinute(std::string_view digits)
{
    const auto typed = typedMinute(digits);
    if (typed) choose(day(), hours(hourOfDay()) + minutes(*typed));
}

void DateTimePicker::moveTime(minutes step)
{
    chooseMoment(floor<minutes>(*moment) + step);
}

void DateTimePicker::switchDayHalf()
{
    choose(day(), hours((hourOfDay() + 12) % 24) + minutes(minuteOfHour()));
}

void DateTimePicker::choose(local_days chosen, minutes timeOfDay)
{
    chooseMoment(momentAt(ports_.locale, LocalTime(withinCalendar(chosen) + timeOfDay), *moment));
}

void DateTimePicker::chooseMoment(Time chosen)
{
    const auto chosenDay = ports_.locale.day(chosen);
    if (chosenDay != withinCalendar(chosenDay)) return;
    moment = chosen;
    shownMonth = monthOf(chosenDay);
}

}  // namespace larkspan::presentation
