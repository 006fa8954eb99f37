#pragma once

#include <functional>
#include <memory>

#include "platform/Executor.h"
#include "presentation/screens/RunningAction.h"
#include "support/Observable.h"

namespace larkspan::presentation {

/// A screen with text that the user types for the service: it asks before the text is lost. Main thread only; closing
/// it cancels no request.
class GuardedScreen : public support::Observable, public std::enable_shared_from_this<GuardedScreen> {
public:
    virtual ~GuardedScreen() = default;

    /// Whether the question is shown if typed text may be lost.
    support::Published<bool> showDiscardConfirmation{*this, false};
    /// The running request, and the alert of the last failure.
    const std::shared_ptr<RunningAction> action;

    /// Calls `observer` before anything that the screen shows changes.
    [[nodiscard]] virtual support::Subscriptions observe(const std::function<void()>& observer);

    bool isIdle() const { return !*action->isInProgress; }
    virtual bool isSaveEnabled() const = 0;

    /// Whether leaving would lose typed text.
    virtual bool hasUnsavedText() const = 0;
    /// Whether the screen must not be removed automatically: text would be lost, or an action has not ended.
    bool isHeld() const { return hasUnsavedText() || !isIdle(); }
    /// Asks before an action `leave` that removes this screen. If text would be lost, asks the user, calls `leave` once
    /// the user has confirmed or the service has the text, and returns true; otherwise does nothing and returns false.
    bool asksBefore(std::function<void()> leave);
    /// True also while a request runs, unless the screen has to show its result.
    virtual bool isCloseEnabled() const { return true; }
    /// Leaves without a question. Does nothing if called again before the screen is gone.
    void close();
    /// Closes on Escape, on going back or on a press outside, but asks first if text would be lost.
    void requestClose();
    void keepEditing();
    /// Discards the text; called when the user has confirmed.
    void discardChanges();

protected:
    struct Owner {
        /// Closes the screen.
        std::function<void()> dismiss;
        /// Called when it is unknown whether a write took effect: fetches the list from which the screen was opened
        /// again.
        std::function<void()> reloadList;
    };

    GuardedScreen(platform::Executor& main, Owner owner);

    void dismiss();
    /// Performs the action that was waiting, because nothing would be lost any more.
    void runPendingLeave();

    /// `screen` as a pointer for its requests to hold.
    template <typename Screen>
    static std::shared_ptr<Screen> held(Screen* screen)
    {
        return {screen->shared_from_this(), screen};
    }

private:
    /// Leaves the screen, or what is open in it.
    virtual void leave() { dismiss(); }

    const std::function<void()> dismiss_;
    // The action that the shown question is about; empty if it is about closing this screen only.
    std::function<void()> leaveFor_;
    bool isDismissed_ = false;
};

}  // namespace larkspan::presentation
