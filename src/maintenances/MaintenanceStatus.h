#pragma once

#include <string>
#include <string_view>

#include "presentation/shapes/Pill.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::maintenances {

// Other words, of records without dates, are shown, but allow no action.
inline constexpr std::string_view scheduled = "scheduled";
inline constexpr std::string_view inProgress = "in_progress";
inline constexpr std::string_view completed = "completed";

std::string maintenanceStatusLabel(std::string_view status);

presentation::Tone maintenanceStatusColor(std::string_view status);

/// The status as a word with its colour.
presentation::Pill statusPill(std::string_view status);

}  // namespace larkspan::maintenances
