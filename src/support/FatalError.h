#pragma once

#include <string_view>

namespace larkspan::support {

/// Writes `message` to standard error and ends the process at once. For states in which the program must not go on.
[[noreturn]] void fatalError(std::string_view message);

/// Ends the process with a sentence on standard error as soon as it gets no memory, from this call on: nothing that was
/// begun is half done then. Call it once, at the start.
void endWhenMemoryRunsOut();

}  // namespace larkspan::support
