#pragma once

#include <optional>
#include <vector>

#include "model/records/Incident.h"
#include "presentation/shapes/Pill.h"

namespace larkspan::incidents {

/// The status as a word, without a symbol.
presentation::Pill statusPill(const model::Incident& incident);

/// Absent if the incident has no severity.
std::optional<presentation::Pill> severityPill(const model::Incident& incident);

/// The pills under the title of an opened incident: status, severity, acknowledgement.
std::vector<presentation::Pill> headerPills(const model::Incident& incident);

}  // namespace larkspan::incidents
