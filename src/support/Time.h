#pragma once

#include <chrono>

namespace larkspan::support {

/// A moment in UTC, to the millisecond.
using Time = std::chrono::sys_time<std::chrono::milliseconds>;

}  // namespace larkspan::support
