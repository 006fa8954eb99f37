#pragma once

#include <string>

#include "support/Time.h"

namespace larkspan::simulator {

/// A moment as the service writes it: ISO 8601 in UTC, with milliseconds only where it has some.
std::string wireDate(support::Time time);

}  // namespace larkspan::simulator
