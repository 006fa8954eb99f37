#pragma once

namespace larkspan::adapters {

/// Keeps the process's memory, and with it the API key, out of core dumps.
/// Does nothing in a debug build, where a developer wants them.
void hardenProcess();

}  // namespace larkspan::adapters
