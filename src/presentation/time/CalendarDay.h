#pragma once

#include <string>

namespace larkspan::presentation {

/// A day in the grid of a calendar.
struct CalendarDay {
    /// Passed to the calendar when the day is chosen.
    int id = 0;
    std::string number{};
    /// The full date, for assistive technologies.
    std::string name{};
    /// Whether the day is in the shown month and not in a neighbouring one.
    bool isInMonth = false;
    bool isToday = false;
    bool isChosen = false;

    bool operator==(const CalendarDay&) const = default;
};

}  // namespace larkspan::presentation
