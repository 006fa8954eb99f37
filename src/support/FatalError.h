#pragma once

#include <string_view>

namespace larkspan::support {

/// Writes `message` to standard error and ends the process at once. For states that must not be survived.
[[noreturn]] void fatalError(std::string_view message);

}  // namespace larkspan::support
