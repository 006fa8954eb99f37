#pragma once

#include <string>

#include "presentation/shapes/Tone.h"

namespace larkspan::presentation {

/// Shown in the middle of a screen that has nothing to list.
struct Placeholder {
    /// Empty for none.
    std::string symbol{};
    Tone tone = Tone::secondary;
    /// Empty for none.
    std::string title{};
    std::string text{};
    bool showsProgress = false;
    bool offersSettings = false;
    bool offersRetry = false;

    bool operator==(const Placeholder&) const = default;
};

}  // namespace larkspan::presentation
