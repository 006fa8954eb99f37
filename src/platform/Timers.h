#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace larkspan::platform {

/// A running timer; destroying it stops it, also from within its callback.
class Timer {
public:
    virtual ~Timer() = default;
};

/// Timers of the main thread.
class Timers {
public:
    virtual ~Timers() = default;

    /// Calls `fire` on the main thread every `period`, for the first time one period from now.
    [[nodiscard]] virtual std::unique_ptr<Timer> every(std::chrono::milliseconds period, std::function<void()> fire)
        = 0;
};

}  // namespace larkspan::platform
