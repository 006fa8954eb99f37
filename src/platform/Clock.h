#pragma once

#include "support/Time.h"

namespace larkspan::platform {

/// The time of day.
class Clock {
public:
    virtual ~Clock() = default;

    /// Any thread.
    virtual support::Time now() const = 0;
};

}  // namespace larkspan::platform
