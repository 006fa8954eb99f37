#pragma once

#include <string>

#include "presentation/shapes/Tone.h"

namespace larkspan::presentation {

/// A state in one line, with details in a second one.
struct Headline {
    std::string symbol{};
    Tone tone = Tone::secondary;
    std::string title{};
    std::string details{};

    bool operator==(const Headline&) const = default;
};

}  // namespace larkspan::presentation
