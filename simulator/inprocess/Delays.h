#pragma once

#include <chrono>

#include "support/UniqueFunction.h"

namespace larkspan::simulator {

/// Runs work after a delay. Any thread.
class Delays {
public:
    virtual ~Delays() = default;

    /// Runs `work` when `wait` is over, never inside this call.
    virtual void after(std::chrono::milliseconds wait, support::UniqueFunction<void()> work) = 0;
};

}  // namespace larkspan::simulator
