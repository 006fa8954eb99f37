#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Clock.h"
#include "platform/LocaleText.h"
#include "presentation/time/CalendarDay.h"
#include "presentation/time/ClockFace.h"
#include "support/Observable.h"
#include "support/Time.h"

namespace larkspan::presentation {

/// The choice of a moment by a calendar and a clock of the user's time zone. An unchanged moment keeps its
/// milliseconds; a chosen one is a whole minute. Main thread only.
class DateTimePicker final : public support::Observable {
public:
    struct Ports {
        const platform::Clock& clock;
        const platform::LocaleText& locale;
    };

    DateTimePicker(Ports ports, support::Time moment);

    support::Published<support::Time> moment;
    /// The month in the calendar; the user may browse to other months than that of `moment`.
    support::Published<std::chrono::year_month> shownMonth;

    /// Starts again with another moment.
    void show(support::Time other);
    /// Whether the user has chosen another moment than the initial one.
    bool isChanged() const { return *moment != initial_; }

    std::string date() const { return ports_.locale.dateOnly(*moment); }
    std::string time() const { return ports_.locale.timeOnly(*moment); }
    /// The user's time zone at the chosen moment, such as "CET (UTC+1)".
    std::string zone() const;

    std::string month() const { return ports_.locale.monthAndYear(*shownMonth); }
    /// The names over the columns.
    std::vector<std::string> weekdays() const;
    /// The days of the calendar, week by week.
    std::vector<CalendarDay> days() const;
    void browseMonths(int count);
    void chooseDay(int id);

    /// Moves from the chosen day or, if that is not visible, from the first day of the shown month.
    void moveDays(int count);
    void moveMonths(int count);
    void moveToBeginOfWeek();
    void moveToEndOfWeek();

    std::string hour() const;
    std::string minute() const;
    /// The half of the day; empty on a clock of twenty-four hours.
    std::string dayHalf() const;
    /// Typed digits take effect at once; an invalid time is ignored.
    void typeHour(std::string_view digits);
    void typeMinute(std::string_view digits);
    /// Moves by elapsed time, whatever the clocks show.
    void moveTime(std::chrono::minutes step);
    void switchDayHalf();

private:
    ClockFace face() const;
    std::chrono::local_days day() const { return ports_.locale.day(*moment); }
    std::chrono::local_days visibleDay() const;
    std::chrono::minutes timeOfDay() const;
    int hourOfDay() const { return static_cast<int>(timeOfDay() / std::chrono::hours(1)); }
    int minuteOfHour() const { return static_cast<int>(timeOfDay().count()) % 60; }
    void choose(std::chrono::local_days day, std::chrono::minutes timeOfDay);
    void chooseMoment(support::Time chosen);

    const Ports ports_;
    support::Time initial_;
};

}  // namespace larkspan::presentation
