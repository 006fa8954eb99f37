#pragma once

#include <string_view>

#include "presentation/shapes/Pill.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::components {

/// The symbol of a component's status. The status is the service's own word, known in any case of letters but with no
/// blank, hyphen or underscore added.
std::string_view componentStatusIcon(std::string_view status);

presentation::Tone componentStatusColor(std::string_view status);

/// The word as the service has it, only capitalised.
presentation::Pill componentStatusPill(std::string_view status);

}  // namespace larkspan::components
