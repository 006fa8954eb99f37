#pragma once

#include <string>

#include "presentation/shapes/Tone.h"

namespace larkspan::presentation {

/// A labelled value in one line, such as "Created: 20 November 2026".
struct Fact {
    std::string label{};
    std::string text{};
    Tone tone = Tone::secondary;
    /// Where the text leads; empty if it is no link.
    std::string destination{};
    /// What stands behind the text in small letters; empty for none.
    std::string caption{};
    /// Before the label; empty for none.
    std::string symbol{};
    /// What the text stands for, in full; empty where it says all.
    std::string explanation{};
    /// The label is in small letters, so that the text has the line.
    bool hasSmallLabel = false;

    bool operator==(const Fact&) const = default;
};

}  // namespace larkspan::presentation
