#pragma once

#include <string_view>

#include "model/records/IncidentStatus.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::incidents {

presentation::Tone incidentStatusColor(model::IncidentStatus status);

/// The colour of a severity by name, ignoring the case of letters; an account's own names are gray.
presentation::Tone severityColor(std::string_view name);

}  // namespace larkspan::incidents
