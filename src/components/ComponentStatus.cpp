#include "components/ComponentStatus.h"

#include <algorithm>
#include <array>

#include "presentation/text/InPart.h"
#include "support/Capitalized.h"
#include "support/IgnoringCase.h"

namespace larkspan::components {

using presentation::Pill;
using presentation::Tone;

namespace {

struct KnownStatus {
    std::string_view word;
    std::string_view symbol;
    Tone tone;
};

constexpr std::array<KnownStatus, 8> knownStatuses{{
    {"up", "checkmark.circle.fill", Tone::green},
    {"operational", "checkmark.circle.fill", Tone::green},
    {"degraded", "exclamationmark.triangle.fill", Tone::yellow},
    {"degradedperformance", "exclamationmark.triangle.fill", Tone::yellow},
    {"partialoutage", "exclamationmark.triangle.fill", Tone::orange},
    {"down", "xmark.octagon.fill", Tone::red},
    {"majoroutage", "xmark.octagon.fill", Tone::red},
    {"undermaintenance", "wrench.and.screwdriver.fill", Tone::blue},
}};

constexpr KnownStatus unknownStatus{"", "questionmark.circle", Tone::gray};

const KnownStatus& known(std::string_view status)
{
    const auto found = std::ranges::find_if(
        knownStatuses, [status](const auto& each) { return support::equalsIgnoringCase(status, each.word); });
    return found == knownStatuses.end() ? unknownStatus : *found;
}

}  // namespace

std::string_view componentStatusIcon(std::string_view status)
{
    return known(status).symbol;
}

Tone componentStatusColor(std::string_view status)
{
    return known(status).tone;
}

Pill componentStatusPill(std::string_view status)
{
    return {.text = support::capitalized(presentation::inPart(status, presentation::mostOfAWord)),
        .tone = componentStatusColor(status)};
}

}  // namespace larkspan::components
