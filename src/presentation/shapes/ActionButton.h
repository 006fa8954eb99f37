#pragma once

#include <string>

#include "presentation/shapes/Tone.h"

namespace larkspan::presentation {

/// One of the buttons under a record; disabled ones remain visible.
struct ActionButton {
    /// Passed to the screen when the button is pressed.
    std::string id{};
    std::string label{};
    std::string symbol{};
    Tone tone = Tone::primary;
    bool isProminent = false;
    /// Whether it is placed beside the other paired button where buttons stand one below the other.
    bool isPaired = false;
    /// Whether it is placed at the other end of a row, away from the others.
    bool isApart = false;
    bool isEnabled = true;

    bool operator==(const ActionButton&) const = default;
};

}  // namespace larkspan::presentation
