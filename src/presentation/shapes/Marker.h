#pragma once

#include <string>

#include "presentation/shapes/Tone.h"

namespace larkspan::presentation {

/// A short text with a symbol or progress before it. Empty if there is nothing to show.
struct Marker {
    /// Empty for none.
    std::string symbol{};
    Tone symbolTone = Tone::secondary;
    std::string text{};
    Tone tone = Tone::secondary;
    bool showsProgress = false;

    bool operator==(const Marker&) const = default;
};

}  // namespace larkspan::presentation
