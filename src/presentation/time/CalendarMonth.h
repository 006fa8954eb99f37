#pragma once

#include <array>
#include <chrono>

namespace larkspan::presentation {

/// A date of the service has four digits for its year, and UTC may be a day away.
inline constexpr std::chrono::local_days firstDay{std::chrono::year{1} / 1 / 2};
inline constexpr std::chrono::local_days lastDay{std::chrono::year{9999} / 12 / 30};

/// Six weeks, so that every month needs the same room: those that `month` stands in, and what follows.
std::array<std::chrono::local_days, 42> weeksOf(std::chrono::year_month month, std::chrono::weekday firstDayOfWeek);

/// The first day of the week of `day`.
std::chrono::local_days beginOfWeek(std::chrono::local_days day, std::chrono::weekday firstDayOfWeek);

/// The same day of another month, or that month's last one where it has no such day.
std::chrono::local_days monthsLater(std::chrono::local_days day, int months);

std::chrono::year_month monthOf(std::chrono::local_days day);

/// `day`, or the day next to it that can be chosen.
std::chrono::local_days withinCalendar(std::chrono::local_days day);

/// `month`, or the month next to it that has a day to choose.
std::chrono::year_month withinCalendar(std::chrono::year_month month);

}  // namespace larkspan::presentation
