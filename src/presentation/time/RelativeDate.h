#pragma once

#include <string>

#include "support/Time.h"

namespace larkspan::presentation {

/// How far a moment is from `now`, in the largest unit that fills: "5 minutes ago", "1 day ago", "in 2 hours". The
/// number is cut, never rounded; within a second it is "now".
std::string relativeDate(support::Time date, support::Time now);

}  // namespace larkspan::presentation
