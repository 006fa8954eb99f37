#pragma once

#include <functional>
#include <memory>

#include "platform/Executor.h"
#include "support/Observable.h"
#include "support/ScreenUpdates.h"

namespace larkspan::support {

/// Calls `react` after changes, once for all of a turn; never after its own destruction.
class AfterChanges {
public:
    /// After the changes that `announce` is called for; not while `updates` are held.
    AfterChanges(const ScreenUpdates& updates, std::function<void()> react);

    /// After the changes of `observed`, whether or not a window is visible.
    AfterChanges(platform::Executor& main, Observable& observed, std::function<void()> react);

    AfterChanges(const AfterChanges&) = delete;
    AfterChanges& operator=(const AfterChanges&) = delete;

    /// Call it before each change.
    void announce() const;

private:
    const std::shared_ptr<ScreenUpdates::Board> board_;
    const std::shared_ptr<ScreenUpdates::Reaction> reaction_;
    Subscription changes_;
};

}  // namespace larkspan::support
