#pragma once

#include <string_view>

namespace larkspan::model {

/// The status of a page.
enum class StatusPageStatus { operational, degraded, down, maintenance, unknown };

/// The label: "Operational", "Degraded", "Down", "Maintenance", "Unknown".
std::string_view displayName(StatusPageStatus status);

}  // namespace larkspan::model
