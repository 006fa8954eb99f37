#pragma once

#include <string>

#include "presentation/shapes/Tone.h"

namespace larkspan::presentation {

/// A status word on a tint of its own colour.
struct Pill {
    std::string text{};
    Tone tone = Tone::gray;
    /// Empty for none.
    std::string symbol{};

    bool operator==(const Pill&) const = default;
};

}  // namespace larkspan::presentation
