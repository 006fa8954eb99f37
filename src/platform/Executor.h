#pragma once

#include "support/UniqueFunction.h"

namespace larkspan::platform {

/// Runs work, one piece after the other, in the order of posting: a thread with a loop, or a test's queue.
class Executor {
public:
    virtual ~Executor() = default;

    /// Queues `work` and returns at once; it never runs inside this call. Any thread. An executor that is shutting down
    /// still accepts work, and runs or destroys it before it is destroyed itself.
    virtual void post(support::UniqueFunction<void()> work) = 0;
};

}  // namespace larkspan::platform
