#pragma once

#include <string>
#include <vector>

#include "model/records/Monitor.h"
#include "presentation/shapes/Pill.h"

namespace larkspan::monitors {

/// The word for a monitor's status, such as "Operational".
std::string statusWord(const model::Monitor& monitor);

/// The type in capitals, such as "HTTP".
presentation::Pill typePill(const model::Monitor& monitor);

/// The state and the type of a monitor, at the top of its screen.
std::vector<presentation::Pill> headerPills(const model::Monitor& monitor);

}  // namespace larkspan::monitors
