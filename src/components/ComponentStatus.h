#pragma once

#include <string_view>

#include "presentation/shapes/Pill.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::components {

/// The symbol of a component's status. The status is the service's word; the case of letters is ignored, but no
/// additional blank, hyphen or underscore.
std::string_view componentStatusIcon(std::string_view status);

presentation::Tone componentStatusColor(std::string_view status);

/// The service's word, capitalised.
presentation::Pill componentStatusPill(std::string_view status);

}  // namespace larkspan::components
