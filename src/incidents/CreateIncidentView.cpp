#include "incidents/CreateIncidentView.h"

#include <utility>

#include "support/UnlessEmpty.h"

namespace larkspan::incidents {

using model::CreateIncidentRequest;
using presentation::ComponentSelection;
using support::Task;

namespace {

constexpr ComponentSelection::Words selectionWords{.noMonitor = "Select a monitor",
    .hintForPage = "Choose a group only when the incident is limited to it.",
    .hintForComponent = "Then choose the affected component within that group.",
    .failure = ComponentSelection::ComponentFailure::silent};

}  // namespace

CreateIncidentView::CreateIncidentView(Ports ports, std::string page, Owner owner)
    : EventForm(ports.selection, std::move(page), selectionWords,
          {.dismiss = std::move(owner.dismiss), .reloadList = std::move(owner.reloadList)})
    , api_(ports.api)
    , onCreated_(std::move(owner.onCreated))
{
}

bool CreateIncidentView::isSelectionComplete() const
{
    if (selection->selectedComponentGroupID->empty()) return true;
    if (selection->selectedComponentID->empty() || *selection->isLoadingMonitors) return false;
    return selection->componentMonitors->empty() || !selection->selectedMonitorID->empty();
}

CreateIncidentRequest CreateIncidentView::request() const
{
    return {.title = *title,
        .message = support::unlessEmpty(*message),
        .statusPageId = pageId,
        .componentId = support::unlessEmpty(*selection->selectedComponentID),
        .monitorId = support::unlessEmpty(*selection->selectedMonitorID),
        .notifySubscribers = *notifySubscribers};
}

Task<void> CreateIncidentView::create()
{
    return send(held(this), api_.createIncident(request()), onCreated_);
}

}  // namespace larkspan::incidents
