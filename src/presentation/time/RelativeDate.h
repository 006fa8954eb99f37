#pragma once

#include <string>

#include "support/Time.h"

namespace larkspan::presentation {

/// The distance of `date` from `now` in the largest unit that fits: "5 minutes ago", "1 day ago", "in 2 hours". The
/// number is truncated, never rounded; within a second the text is "now".
std::string relativeDate(support::Time date, support::Time now);

}  // namespace larkspan::presentation
