#include "incidents/IncidentColors.h"

#include <algorithm>
#include <array>
#include <utility>

#include "support/IgnoringCase.h"

namespace larkspan::incidents {

using model::IncidentStatus;
using presentation::Tone;

Tone incidentStatusColor(IncidentStatus status)
{
    switch (status) {
    case IncidentStatus::active: return Tone::red;
    case IncidentStatus::acknowledged: return Tone::orange;
    case IncidentStatus::resolved:
    case IncidentStatus::completed: break;
    }
    return Tone::green;
}

Tone severityColor(std::string_view name)
{
    using namespace std::string_view_literals;
    static constexpr std::array colors{std::pair("critical"sv, Tone::red), std::pair("major"sv, Tone::orange),
        std::pair("minor"sv, Tone::yellow), std::pair("maintenance"sv, Tone::blue)};
    const auto found
        = std::ranges::find_if(colors, [name](auto& each) { return support::equalsIgnoringCase(name, each.first); });
    return found == colors.end() ? Tone::gray : found->second;
}

}  // namespace larkspan::incidents
