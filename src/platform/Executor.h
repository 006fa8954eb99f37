#pragma once

#include "support/UniqueFunction.h"

namespace larkspan::platform {

/// A place where work runs, one piece after the other, in the order posted: a thread with a loop, or a test's queue.
class Executor {
public:
    virtual ~Executor() = default;

    /// Queues `work` and returns at once; it never runs inside this call. May be called from any thread.
    /// An executor that is shutting down still takes work, and runs or destroys it before it is gone itself.
    virtual void post(support::UniqueFunction<void()> work) = 0;
};

}  // namespace larkspan::platform
