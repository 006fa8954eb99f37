#include "presentation/EventForm.h"

#include <utility>

#include "support/Trimming.h"

namespace larkspan::presentation {

EventForm::EventForm(
    ComponentSelection::Ports ports, std::string page, SelectionWords words, std::function<void()> dismiss)
    : pageId(std::move(page))
    , action(std::make_shared<RunningAction>(ports.main))
    , selection(std::make_shared<ComponentSelection>(
          ports, pageId, words.failure, [alerts = action](std::string failure) { alerts->alert = std::move(failure); }))
    , words_(words)
    , dismiss_(std::move(dismiss))
{
}

support::Subscriptions EventForm::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), action->objectWillChange(observer), selection->objectWillChange(observer)};
}

std::string_view EventForm::selectionHint() const
{
    return selection->showsComponentPicker() ? words_.hintForComponent : words_.hintForPage;
}

// The service takes a title of line ends, so only blanks count as none.
bool EventForm::canBeSent() const
{
    return !support::withoutBlanksAround(*title).empty();
}

bool EventForm::isSaveEnabled() const
{
    return !*action->isInProgress && canBeSent() && isSelectionComplete();
}

void EventForm::save()
{
    if (canBeSent()) action->run(create());
}

void EventForm::cancel()
{
    // Its owner may let go of it here.
    const auto self = shared_from_this();
    if (isCancelEnabled()) dismiss();
}

bool EventForm::hasUnsavedText() const
{
    return !support::trimmed(*title).empty() || !support::trimmed(*message).empty();
}

void EventForm::requestClose()
{
    if (isCancelEnabled() && hasUnsavedText())
        showDiscardConfirmation = true;
    else
        cancel();
}

void EventForm::discardChanges()
{
    showDiscardConfirmation = false;
    cancel();
}

}  // namespace larkspan::presentation
