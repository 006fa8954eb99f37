#pragma once

#include <string>

#include "support/Time.h"

namespace larkspan::presentation {

/// The time between two moments in whole hours and minutes: "2h 5m", "2h", "5m", or "< 1m". Hours are not carried into
/// days. Empty if `to` is a minute or more before `from`.
std::string durationText(support::Time from, support::Time to);

}  // namespace larkspan::presentation
