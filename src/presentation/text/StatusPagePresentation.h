#pragma once

#include <string_view>

#include "model/records/StatusPageStatus.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::presentation {

/// The presentation of a page's status in every row of a page.
struct StatusPagePresentation {
    std::string_view label;
    std::string_view symbol;
    Tone tone;

    static StatusPagePresentation of(model::StatusPageStatus status);
};

}  // namespace larkspan::presentation
