#include "presentation/forms/EventForm.h"

#include <utility>

#include "support/Trimming.h"

namespace larkspan::presentation {

EventForm::EventForm(ComponentSelection::Ports ports, std::string page, ComponentSelection::Words selectionWords,
    GuardedScreen::Owner owner)
    : GuardedScreen(ports.main, std::move(owner))
    , pageId(std::move(page))
    , selection(std::make_shared<ComponentSelection>(ports, pageId, selectionWords,
          [action = action](std::string failure) { action->alert.raise(std::move(failure)); }))
{
}

support::Subscriptions EventForm::observe(const std::function<void()>& observer)
{
    auto subscriptions = GuardedScreen::observe(observer);
    subscriptions.push_back(selection->objectWillChange(observer));
    return subscriptions;
}

// The service accepts a title of line ends, so only blanks count as empty.
bool EventForm::canBeSent() const
{
    return !support::withoutBlanksAround(*title).empty();
}

bool EventForm::isSaveEnabled() const
{
    return isIdle() && canBeSent() && isSelectionComplete();
}

void EventForm::save()
{
    if (canBeSent()) action->run(create());
}

bool EventForm::hasUnsavedText() const
{
    return !support::trimmed(*title).empty() || !support::trimmed(*message).empty();
}

}  // namespace larkspan::presentation
