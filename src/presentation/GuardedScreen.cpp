#include "presentation/GuardedScreen.h"

#include <utility>

namespace larkspan::presentation {

GuardedScreen::GuardedScreen(platform::Executor& main, Owner owner)
    : action(std::make_shared<RunningAction>(main, std::move(owner.lookAgain)))
    , dismiss_(std::move(owner.dismiss))
{
}

support::Subscriptions GuardedScreen::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), action->objectWillChange(observer)};
}

void GuardedScreen::close()
{
    // Its owner may let go of it here.
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

void GuardedScreen::dismiss()
{
    isDismissed_ = true;
    dismiss_();
}

void GuardedScreen::discardChanges()
{
    // A save that ended meanwhile took the question back, and left what is in sight now.
    if (!*showDiscardConfirmation) return;
    showDiscardConfirmation = false;
    close();
}

}  // namespace larkspan::presentation
