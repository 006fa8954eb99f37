#pragma once

namespace larkspan::adapters {

/// Keeps the process's memory, and with it the API key, out of core dumps.
/// Does nothing in a debug build, where developers want the dumps.
void hardenProcess();

}  // namespace larkspan::adapters
