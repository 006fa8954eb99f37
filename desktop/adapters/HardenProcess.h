#pragma once

namespace larkspan::adapters {

/// Gives up what the process never needs: rights beyond the user's, also for what it starts; and core dumps, which
/// would contain the API key. In a debug build, where developers want them, dumps are kept.
void hardenProcess();

/// Allows core dumps again as the process was allowed before it was hardened, and forbids them again. What it starts in
/// between, such as the browser, has the user's limits. Neither does anything in a process that was not hardened.
void allowCoreDumpsAsGiven();
void forbidCoreDumpsAgain();

}  // namespace larkspan::adapters
