#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "support/Time.h"

namespace larkspan::model {

/// Reads `2026-03-01T09:30:00Z` and the same with a fraction of any length; nothing else.
/// The zone is `Z` or an offset with a colon (`+02:00`). Fractions are cut to milliseconds, never rounded.
std::optional<support::Time> readISO8601(std::string_view text);

/// `time` in UTC with whole seconds, as in `2026-03-01T09:30:00Z`; the year must be within 0 and 9999.
std::string writeISO8601(support::Time time);

}  // namespace larkspan::model
