#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/Executor.h"
#include "presentation/screens/AlertSequence.h"
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
    /// The words of the alert; empty while there is none.
    support::Published<std::string> alert{*this};

    /// Runs `work` on the main thread; whatever it throws becomes the alert. While another runs, it is dropped.
    void run(support::Task<void> work);

    /// A failure that is not an action's own comes up like one.
    void raiseAlert(std::string words) { alerts_.raise(std::move(words)); }
    void dismissAlert() { alerts_.dismiss(); }
    /// Tells the alerts apart, also two that say the same.
    int alertNumber() const { return alerts_.number(); }

private:
    static support::Task<void> carryOut(std::shared_ptr<RunningAction> self, support::Task<void> work);

    platform::Executor& main_;
    const std::function<void()> lookAgain_;
    AlertSequence alerts_;
};

}  // namespace larkspan::presentation
