#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "support/Time.h"

namespace larkspan::simulator {

/// `time` as the service writes it: ISO 8601 in UTC, with milliseconds only if they are not zero.
std::string wireDate(support::Time time);

/// Reads a time as clients write it: ISO 8601 in UTC with whole seconds, "2026-03-01T09:30:00Z".
std::optional<support::Time> readWireDate(std::string_view text);

}  // namespace larkspan::simulator
