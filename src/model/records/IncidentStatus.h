#pragma once

#include <string_view>

namespace larkspan::model {

/// The status of an incident; `completed` comes from no answer of the service.
enum class IncidentStatus { active, acknowledged, resolved, completed };

/// The word: "active", "acknowledged", "resolved", "completed".
std::string_view rawText(IncidentStatus status);

}  // namespace larkspan::model
