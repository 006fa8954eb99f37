#pragma once

#include <functional>
#include <memory>

#include "platform/Executor.h"
#include "presentation/screens/FailureAlert.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::presentation {

/// The actions that a screen runs for the user: one at a time, with a busy state and an alert on failure. Main thread
/// only; a running action may outlive the screen that started it.
class RunningAction final : public support::Observable, public std::enable_shared_from_this<RunningAction> {
public:
    /// `reloadList` is called if an action has failed but may have taken effect.
    explicit RunningAction(platform::Executor& main, std::function<void()> reloadList = {});

    support::Published<bool> isInProgress{*this, false};
    FailureAlert alert{*this};

    /// Runs `work` on the main thread; any exception becomes the alert. Dropped while another action runs.
    void run(support::Task<void> work);

private:
    static support::Task<void> carryOut(std::shared_ptr<RunningAction> self, support::Task<void> work);

    platform::Executor& main_;
    const std::function<void()> reloadList_;
};

}  // namespace larkspan::presentation
