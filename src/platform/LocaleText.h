#pragma once

#include <chrono>
#include <compare>
#include <optional>
#include <string>
#include <string_view>

#include "support/Time.h"

namespace larkspan::platform {

/// How the user's locale writes moments and orders names, and what the clocks of the user's time zone show. All texts
/// are UTF-8. Main thread only.
class LocaleText {
public:
    /// How a clock of twelve hours calls them.
    struct DayHalves {
        std::string beforeNoon;
        std::string afterNoon;
    };

    virtual ~LocaleText() = default;

    /// The date without the time of day, in the user's time zone.
    virtual std::string dateOnly(support::Time moment) const = 0;

    /// The time of day without the date, in the user's time zone.
    virtual std::string timeOnly(support::Time moment) const = 0;

    /// Both in few letters and without the year, for a moment of these days: "Nov 20, 9:30 AM".
    virtual std::string dayAndTime(support::Time moment) const = 0;

    /// How far the user's time zone is ahead of UTC at `moment`.
    virtual std::chrono::seconds utcOffset(support::Time moment) const = 0;

    /// How the user's time zone is called at `moment`, such as "CET"; empty if it has no name.
    virtual std::string zoneName(support::Time moment) const = 0;

    virtual std::chrono::weekday firstDayOfWeek() const = 0;

    /// In a few letters, as it stands over a column.
    virtual std::string weekdayName(std::chrono::weekday day) const = 0;

    /// The two as they stand over a calendar, such as "November 2026".
    virtual std::string monthAndYear(std::chrono::year_month month) const = 0;

    /// Absent where the clock counts twenty-four hours.
    virtual std::optional<DayHalves> dayHalves() const = 0;

    /// The order of two names in a list; the case of letters makes no difference.
    virtual std::weak_ordering compareIgnoringCase(std::string_view left, std::string_view right) const = 0;

    /// What the user's calendar and clock show at `moment`.
    std::chrono::local_time<support::Time::duration> localTime(support::Time moment) const
    {
        return std::chrono::local_time<support::Time::duration>((moment + utcOffset(moment)).time_since_epoch());
    }

    /// The calendar day that the user's time zone has at `moment`.
    std::chrono::local_days day(support::Time moment) const
    {
        return std::chrono::floor<std::chrono::days>(localTime(moment));
    }
};

}  // namespace larkspan::platform
