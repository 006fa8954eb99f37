#pragma once

#include "platform/Clock.h"

namespace larkspan::fakes {

/// A clock that only the test moves.
class ManualClock final : public platform::Clock {
public:
    support::Time now() const override { return time; }

    support::Time time{std::chrono::sys_days{std::chrono::year{2026} / 11 / 20} + std::chrono::hours{9}};
};

}  // namespace larkspan::fakes
