#pragma once

#include <string>

namespace larkspan::presentation {

/// A day in the grid of a calendar.
struct CalendarDay {
    /// What the calendar is asked to choose.
    int id = 0;
    std::string number{};
    /// The whole date, for whoever does not see where the day stands.
    std::string name{};
    /// Of the month that is shown, and not one of its neighbours.
    bool isInMonth = false;
    bool isToday = false;
    bool isChosen = false;

    bool operator==(const CalendarDay&) const = default;
};

}  // namespace larkspan::presentation
