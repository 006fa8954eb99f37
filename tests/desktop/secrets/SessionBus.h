#pragma once

#include "peers/PrivateBus.h"

namespace larkspan::adapters {

/// The session bus of this process. GLib keeps the first bus that it finds, so all tests of a process share it.
peers::PrivateBus& sessionBus();

}  // namespace larkspan::adapters
