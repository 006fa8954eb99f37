#pragma once

namespace larkspan::adapters {

/// Gives up what the process never needs: rights beyond the user's, also for what it starts; and core dumps, which
/// would contain the API key. In a debug build, where developers want them, dumps are kept.
void hardenProcess();

}  // namespace larkspan::adapters
