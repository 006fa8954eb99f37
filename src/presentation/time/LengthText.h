#pragma once

#include <chrono>
#include <string>

#include "support/Time.h"

namespace larkspan::presentation {

/// How long it is from one chosen moment to another, in minutes as pickers show them: an unchanged moment still has its
/// seconds.
std::chrono::minutes lengthBetween(support::Time start, support::Time end);

/// The length in words, without the units that are zero: "1 hour 30 minutes". A day is twenty-four hours, whatever the
/// clocks show. Without a length, a sentence says so.
std::string lengthText(std::chrono::minutes length);

}  // namespace larkspan::presentation
