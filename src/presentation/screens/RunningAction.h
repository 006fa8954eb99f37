#pragma once

#include <functional>
#include <memory>

#include "platform/Executor.h"
#include "presentation/screens/FailureAlert.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::presentation {

/// What a screen has done at the service on the user's wish: one at a time, with a mark while it runs and an alert if
/// it fails. Main thread only; a running action outlives the screen that began it.
class RunningAction final : public support::Observable, public std::enable_shared_from_this<RunningAction> {
public:
    /// `lookAgain` is called where an action has failed of which nobody knows whether it took place.
    explicit RunningAction(platform::Executor& main, std::function<void()> lookAgain = {});

    support::Published<bool> isInProgress{*this, false};
    FailureAlert alert{*this};

    /// Runs `work` on the main thread; whatever it throws becomes the alert. While another runs, it is dropped.
    void run(support::Task<void> work);

private:
    static support::Task<void> carryOut(std::shared_ptr<RunningAction> self, support::Task<void> work);

    platform::Executor& main_;
    const std::function<void()> lookAgain_;
};

}  // namespace larkspan::presentation
