#pragma once

#include "platform/Clock.h"

namespace larkspan::adapters {

/// The computer's clock. Any thread.
class SystemClock final : public platform::Clock {
public:
    support::Time now() const override
    {
        return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
    }
};

}  // namespace larkspan::adapters
