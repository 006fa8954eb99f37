#pragma once

#include <chrono>
#include <compare>
#include <optional>
#include <string>
#include <string_view>

#include "support/Time.h"

namespace larkspan::platform {

/// Formats moments and orders names by the user's locale, and converts moments to the user's time zone. All texts are
/// UTF-8. Main thread only.
class LocaleText {
public:
    /// The words of a clock of twelve hours, such as "AM" and "PM".
    struct DayHalves {
        std::string beforeNoon;
        std::string afterNoon;
    };

    virtual ~LocaleText() = default;

    /// The date without the time of day, in the user's time zone.
    virtual std::string dateOnly(support::Time moment) const = 0;

    /// The time of day without the date, in the user's time zone.
    virtual std::string timeOnly(support::Time moment) const = 0;

    /// Date and time abbreviated and without the year, for moments close to today: "Nov 20, 9:30 AM".
    virtual std::string dayAndTime(support::Time moment) const = 0;

    /// The offset of the user's time zone from UTC at `moment`, positive to the east.
    virtual std::chrono::seconds utcOffset(support::Time moment) const = 0;

    /// The name of the user's time zone at `moment`, such as "CET"; empty if it has none.
    virtual std::string zoneName(support::Time moment) const = 0;

    virtual std::chrono::weekday firstDayOfWeek() const = 0;

    /// The abbreviated name, as in a column's head.
    virtual std::string weekdayName(std::chrono::weekday day) const = 0;

    /// The heading of a calendar, such as "November 2026".
    virtual std::string monthAndYear(std::chrono::year_month month) const = 0;

    /// Absent if the locale's clock has twenty-four hours.
    virtual std::optional<DayHalves> dayHalves() const = 0;

    /// The order of two names in a list; the case of letters is ignored.
    virtual std::weak_ordering compareIgnoringCase(std::string_view left, std::string_view right) const = 0;

    /// The date and time of day in the user's time zone at `moment`.
    std::chrono::local_time<support::Time::duration> localTime(support::Time moment) const
    {
        return std::chrono::local_time<support::Time::duration>((moment + utcOffset(moment)).time_since_epoch());
    }

    /// The calendar day in the user's time zone at `moment`.
    std::chrono::local_days day(support::Time moment) const
    {
        return std::chrono::floor<std::chrono::days>(localTime(moment));
    }
};

}  // namespace larkspan::platform
