#pragma once

#include "platform/Timers.h"

namespace larkspan::adapters {

/// Timers of Qt's event loop. Firings that are due while the computer sleeps or the loop is busy are delivered once,
/// afterwards; time asleep does not count. Main thread only.
class QtTimers final : public platform::Timers {
public:
    [[nodiscard]] std::unique_ptr<platform::Timer> every(
        std::chrono::milliseconds period, std::function<void()> fire) override;
};

}  // namespace larkspan::adapters
