#include "incidents/CreateIncidentView.h"

#include <optional>
#include <utility>

#include "support/Trimming.h"

namespace larkspan::incidents {

using model::CreateIncidentRequest;
using model::Incident;
using presentation::ComponentSelection;
using presentation::RunningAction;
using support::Task;

namespace {

std::optional<std::string> unlessEmpty(const std::string& text)
{
    return text.empty() ? std::nullopt : std::optional(text);
}

}  // namespace

CreateIncidentView::CreateIncidentView(Ports ports, std::string page, Owner owner)
    : pageId(std::move(page))
    , action(std::make_shared<RunningAction>(ports.selection.main))
    , selection(
          std::make_shared<ComponentSelection>(ports.selection, pageId, ComponentSelection::ComponentFailure::silent,
              [alerts = action](std::string words) { alerts->alert = std::move(words); }))
    , api_(ports.api)
    , owner_(std::move(owner))
{
}

std::array<support::Subscription, 3> CreateIncidentView::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), action->objectWillChange(observer), selection->objectWillChange(observer)};
}

std::string_view CreateIncidentView::selectionHint() const
{
    return selection->showsComponentPicker() ? "Then choose the affected component within that group."
                                             : "Choose a group only when the incident is limited to it.";
}

bool CreateIncidentView::isSelectionComplete() const
{
    if (selection->selectedComponentGroupID->empty()) return true;
    if (selection->selectedComponentID->empty() || *selection->isLoadingMonitors) return false;
    return selection->componentMonitors->empty() || !selection->selectedMonitorID->empty();
}

// The service takes a title of line ends, so only blanks count as none.
bool CreateIncidentView::hasTitle() const
{
    return !support::withoutBlanksAround(*title).empty();
}

bool CreateIncidentView::isSaveEnabled() const
{
    return !*action->isInProgress && hasTitle() && isSelectionComplete();
}

void CreateIncidentView::save()
{
    if (!hasTitle()) return;
    action->run(create(shared_from_this(), request()));
}

CreateIncidentRequest CreateIncidentView::request() const
{
    return {.title = *title,
        .message = unlessEmpty(*message),
        .statusPageId = pageId,
        .componentId = unlessEmpty(*selection->selectedComponentID),
        .monitorId = unlessEmpty(*selection->selectedMonitorID),
        .notifySubscribers = *notifySubscribers};
}

Task<void> CreateIncidentView::create(std::shared_ptr<CreateIncidentView> self, CreateIncidentRequest request)
{
    auto creating = self->api_.createIncident(std::move(request));
    const Incident created = co_await std::move(creating);
    self->owner_.onCreated(created);
    self->owner_.dismiss();
}

void CreateIncidentView::cancel()
{
    // Its owner may let go of it here.
    const auto self = shared_from_this();
    if (isCancelEnabled()) owner_.dismiss();
}

bool CreateIncidentView::hasUnsavedText() const
{
    return !support::trimmed(*title).empty() || !support::trimmed(*message).empty();
}

void CreateIncidentView::requestClose()
{
    if (isCancelEnabled() && hasUnsavedText())
        showDiscardConfirmation = true;
    else
        cancel();
}

void CreateIncidentView::discardChanges()
{
    showDiscardConfirmation = false;
    cancel();
}

}  // namespace larkspan::incidents
