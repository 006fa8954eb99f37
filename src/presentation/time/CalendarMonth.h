#pragma once

#include <array>
#include <chrono>

namespace larkspan::presentation {

/// The service's dates have four digits for the year, and the date in UTC may differ by a day.
inline constexpr std::chrono::local_days firstDay{std::chrono::year{1} / 1 / 2};
inline constexpr std::chrono::local_days lastDay{std::chrono::year{9999} / 12 / 30};

/// Six weeks, so that every month takes the same space: those of `month` and the following ones.
std::array<std::chrono::local_days, 42> weeksOf(std::chrono::year_month month, std::chrono::weekday firstDayOfWeek);

std::chrono::local_days beginOfWeek(std::chrono::local_days day, std::chrono::weekday firstDayOfWeek);

/// The same day of another month, or the last day of a month that is too short.
std::chrono::local_days monthsLater(std::chrono::local_days day, int months);

std::chrono::year_month monthOf(std::chrono::local_days day);

/// `day`, or the nearest day that can be chosen.
std::chrono::local_days withinCalendar(std::chrono::local_days day);

/// `month`, or the nearest month with a day that can be chosen.
std::chrono::year_month withinCalendar(std::chrono::year_month month);

}  // namespace larkspan::presentation
