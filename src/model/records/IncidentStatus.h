#pragma once

#include <string_view>

namespace larkspan::model {

/// The status of an incident; no answer of the service results in `completed`.
enum class IncidentStatus { active, acknowledged, resolved, completed };

/// The word of the status: "active", "acknowledged", "resolved", "completed".
std::string_view rawText(IncidentStatus status);

}  // namespace larkspan::model
