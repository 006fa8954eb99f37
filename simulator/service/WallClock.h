#pragma once

#include "platform/Clock.h"

namespace larkspan::simulator {

/// The system's clock; the reference stays valid until the process ends.
const platform::Clock& wallClock();

}  // namespace larkspan::simulator
