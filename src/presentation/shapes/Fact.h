#pragma once

#include <string>

#include "presentation/shapes/Tone.h"

namespace larkspan::presentation {

/// A labelled value in one line, such as "Created: 20 November 2026".
struct Fact {
    std::string label{};
    std::string text{};
    Tone tone = Tone::secondary;
    /// The destination of the text; empty if it is not a link.
    std::string destination{};
    /// A note after the text in small letters; empty for none.
    std::string caption{};
    /// The symbol before the label; empty for none.
    std::string symbol{};
    /// The full meaning of the text; empty if the text is complete.
    std::string explanation{};
    /// Whether the label is in small letters, to leave room for the text.
    bool hasSmallLabel = false;

    bool operator==(const Fact&) const = default;
};

}  // namespace larkspan::presentation
