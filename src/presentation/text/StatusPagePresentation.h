#pragma once

#include <string_view>

#include "model/records/StatusPageStatus.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::presentation {

/// How a single page's status is shown wherever a page has a row.
struct StatusPagePresentation {
    std::string_view label;
    std::string_view symbol;
    Tone tone;

    static StatusPagePresentation of(model::StatusPageStatus status);
};

}  // namespace larkspan::presentation
