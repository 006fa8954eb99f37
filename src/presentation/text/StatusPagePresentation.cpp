#include "presentation/text/StatusPagePresentation.h"

namespace larkspan::presentation {

using model::StatusPageStatus;

StatusPagePresentation StatusPagePresentation::of(StatusPageStatus status)
{
    const auto label = displayName(status);
    switch (status) {
    case StatusPageStatus::operational: return {label, "checkmark.circle.fill", Tone::green};
    case StatusPageStatus::degraded: return {label, "exclamationmark.triangle.fill", Tone::yellow};
    case StatusPageStatus::down: return {label, "xmark.octagon.fill", Tone::red};
    case StatusPageStatus::maintenance: return {label, "wrench.and.screwdriver", Tone::blue};
    case StatusPageStatus::unknown: break;
    }
    return {label, "questionmark.circle", Tone::gray};
}

}  // namespace larkspan::presentation
