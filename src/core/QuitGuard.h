#pragma once

#include <functional>

namespace larkspan::core {

/// Knows whether something would be lost if the program ended. Main thread only.
class QuitGuard {
public:
    virtual ~QuitGuard() = default;

    /// Asks the user and calls `quit` when nothing would be lost or the loss is confirmed. Returns false and does
    /// nothing if nothing would be lost.
    virtual bool asksBeforeQuitting(std::function<void()> quit) = 0;
};

}  // namespace larkspan::core
