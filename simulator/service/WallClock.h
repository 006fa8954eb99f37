#pragma once

#include "platform/Clock.h"

namespace larkspan::simulator {

/// The system's clock, for as long as the process lives.
const platform::Clock& wallClock();

}  // namespace larkspan::simulator
