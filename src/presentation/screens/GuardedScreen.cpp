#include "presentation/screens/GuardedScreen.h"

#include <utility>

namespace larkspan::presentation {

GuardedScreen::GuardedScreen(platform::Executor& main, Owner owner)
    : action(std::make_shared<RunningAction>(main, std::move(owner.reloadList)))
    , dismiss_(std::move(owner.dismiss))
{
}

support::Subscriptions GuardedScreen::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), action->objectWillChange(observer)};
}

void GuardedScreen::close()
{
    // Its owner may release it here.
    const auto self = shared_from_this();
    if (isCloseEnabled() && !isDismissed_) leave();
}

void GuardedScreen::requestClose()
{
    if (isCloseEnabled() && hasUnsavedText())
        showDiscardConfirmation = true;
    else
        close();
}

bool GuardedScreen::asksBefore(std::function<void()> leave)
{
    if (!hasUnsavedText()) return false;
    leaveFor_ = std::move(leave);
    showDiscardConfirmation = true;
    return true;
}

void GuardedScreen::keepEditing()
{
    leaveFor_ = nullptr;
    showDiscardConfirmation = false;
}

void GuardedScreen::dismiss()
{
    isDismissed_ = true;
    dismiss_();
    runPendingLeave();
}

void GuardedScreen::runPendingLeave()
{
    if (const auto leave = std::exchange(leaveFor_, nullptr)) leave();
}

void GuardedScreen::discardChanges()
{
    // A save that ended meanwhile has withdrawn the question, and the current state is to be kept.
    if (!*showDiscardConfirmation) return;
    showDiscardConfirmation = false;
    // An action that removes the whole screen does not need it closed, which it may refuse while a request runs.
    if (leaveFor_)
        runPendingLeave();
    else
        close();
}

}  // namespace larkspan::presentation
