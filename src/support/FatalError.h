#pragma once

#include <string_view>

namespace larkspan::support {

/// Writes `message` to standard error and ends the process at once. For states in which the program must not go on.
[[noreturn]] void fatalError(std::string_view message);

}  // namespace larkspan::support
