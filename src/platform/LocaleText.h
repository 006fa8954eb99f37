#pragma once

#include <chrono>
#include <compare>
#include <string>
#include <string_view>

#include "support/Time.h"

namespace larkspan::platform {

/// How the user's locale writes moments and orders names. All texts are UTF-8. Main thread only.
class LocaleText {
public:
    virtual ~LocaleText() = default;

    /// The date without the time of day, in the user's time zone.
    virtual std::string dateOnly(support::Time moment) const = 0;

    /// The time of day without the date, in the user's time zone.
    virtual std::string timeOnly(support::Time moment) const = 0;

    /// Both in few letters and without the year, for a moment of these days: "Nov 20, 9:30 AM".
    virtual std::string dayAndTime(support::Time moment) const = 0;

    /// The calendar day that the user's time zone has at `moment`.
    virtual std::chrono::local_days day(support::Time moment) const = 0;

    /// The order of two names in a list; the case of letters makes no difference.
    virtual std::weak_ordering compareIgnoringCase(std::string_view left, std::string_view right) const = 0;
};

}  // namespace larkspan::platform
