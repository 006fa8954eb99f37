#pragma once

#include <functional>

namespace larkspan::core {

/// Whoever has something that would be lost with the program. Main thread only.
class QuitGuard {
public:
    virtual ~QuitGuard() = default;

    /// Asks the user, and calls `quit` once nothing is lost by it or its loss is confirmed. False, and nothing done,
    /// where nothing would be lost.
    virtual bool asksBeforeQuitting(std::function<void()> quit) = 0;
};

}  // namespace larkspan::core
