#pragma once

#include <functional>
#include <memory>

#include "platform/Executor.h"
#include "presentation/screens/RunningAction.h"
#include "support/Observable.h"

namespace larkspan::presentation {

/// A screen in which the user types what the service is to get: it asks before that is lost. Main thread only; closing
/// it stops no request.
class GuardedScreen : public support::Observable, public std::enable_shared_from_this<GuardedScreen> {
public:
    virtual ~GuardedScreen() = default;

    /// The question is up whether what has been typed may be lost.
    support::Published<bool> showDiscardConfirmation{*this, false};
    /// The request that runs, and the alert of whatever failed last.
    const std::shared_ptr<RunningAction> action;

    /// Calls `observer` before anything changes that the screen shows.
    [[nodiscard]] virtual support::Subscriptions observe(const std::function<void()>& observer);

    bool isIdle() const { return !*action->isInProgress; }
    virtual bool isSaveEnabled() const = 0;

    /// Leaving would lose what has been typed.
    virtual bool hasUnsavedText() const = 0;
    /// The screen is not to go by itself: something would be lost with it, or an order has not ended.
    bool isHeld() const { return hasUnsavedText() || !isIdle(); }
    /// Something is wanted that takes this screen away. Where text would be lost it asks, and does `leave` once the
    /// user has confirmed that or the service has the text; without text it does nothing, which is false.
    bool asksBefore(std::function<void()> leave);
    /// Also while a request runs, unless the screen has to show how that ends.
    virtual bool isCloseEnabled() const { return true; }
    /// Leaves without a question. Pressed again before the screen has gone, it does nothing.
    void close();
    /// Escape, the way back or a press outside: closes, but asks first where text would be lost.
    void requestClose();
    void keepEditing();
    /// The user confirmed the loss.
    void discardChanges();

protected:
    struct Owner {
        /// Closes the screen.
        std::function<void()> dismiss;
        /// Nobody knows whether an order took place: fetches anew what the screen was opened from.
        std::function<void()> lookAgain;
    };

    GuardedScreen(platform::Executor& main, Owner owner);

    void dismiss();
    /// Nothing would be lost any more: does what was wanted meanwhile.
    void letGo();

    /// `screen` as its requests hold it.
    template <typename Screen>
    static std::shared_ptr<Screen> held(Screen* screen)
    {
        return {screen->shared_from_this(), screen};
    }

private:
    /// What closing leaves: the screen, or what is open in it.
    virtual void leave() { dismiss(); }

    const std::function<void()> dismiss_;
    // What the question that is up is about; nothing while it is about this screen alone.
    std::function<void()> leaveFor_;
    bool isDismissed_ = false;
};

}  // namespace larkspan::presentation
