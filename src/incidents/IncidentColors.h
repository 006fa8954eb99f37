#pragma once

#include <string_view>

#include "model/records/IncidentStatus.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::incidents {

presentation::Tone incidentStatusColor(model::IncidentStatus status);

/// Of a severity's name in any case of letters; an account may have names of its own, which are gray.
presentation::Tone severityColor(std::string_view name);

}  // namespace larkspan::incidents
