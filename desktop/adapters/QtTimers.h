#pragma once

#include "platform/Timers.h"

namespace larkspan::adapters {

/// Timers of Qt's event loop. A firing that comes due while the computer sleeps or the loop is busy comes once,
/// afterwards; time spent asleep doesn't count. Main thread only.
class QtTimers final : public platform::Timers {
public:
    [[nodiscard]] std::unique_ptr<platform::Timer> every(
        std::chrono::milliseconds period, std::function<void()> fire) override;
};

}  // namespace larkspan::adapters
