#include "incidents/StatusPageIncidentsView.h"

#include <algorithm>
#include <iterator>

namespace larkspan::incidents {

using model::Incident;
using presentation::Content;
using presentation::Placeholder;
using presentation::Tone;

StatusPageIncidentsView::StatusPageIncidentsView(Ports ports, const std::string& pageID)
    : viewModel(std::make_shared<StatusPageIncidentsViewModel>(ports.main, ports.incidents, pageID))
    , ports_(ports)
{
}

std::array<support::Subscription, 2> StatusPageIncidentsView::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), viewModel->objectWillChange(observer)};
}

void StatusPageIncidentsView::refresh()
{
    ports_.credentials.allowPromptAgain();
    viewModel->load();
}

Placeholder StatusPageIncidentsView::placeholder() const
{
    switch (content()) {
    case Content::loading: return presentation::loadingPlaceholder("Loading Incidents...");
    case Content::failure:
        return presentation::failurePlaceholder(
            {.symbol = "exclamationmark.triangle", .tone = Tone::yellow, .offersRetry = true}, *viewModel->error);
    case Content::empty:
        return {.symbol = "checkmark.shield",
            .tone = Tone::green,
            .title = "No Incidents",
            .text = "All systems are running smoothly."};
    case Content::records: break;
    }
    return {};
}

std::vector<IncidentRow> StatusPageIncidentsView::rows() const
{
    std::vector<IncidentRow> rows;
    rows.reserve(viewModel->incidents->size());
    std::ranges::transform(*viewModel->incidents, std::back_inserter(rows),
        [this](const Incident& incident) { return IncidentRow::of(incident, ports_.locale); });
    return rows;
}

void StatusPageIncidentsView::openIncident(const std::string& id)
{
    const auto& incidents = *viewModel->incidents;
    const auto opened = std::ranges::find(incidents, id, &Incident::id);
    if (opened == incidents.end()) return;
    const IncidentDetailView::Ports ports{ports_.main, ports_.incidents, ports_.clock, ports_.locale, ports_.links};
    detail_ = std::make_shared<IncidentDetailView>(ports, *opened, ownerOf(*opened));
    presentedIncident = *opened;
}

IncidentDetailView::Owner StatusPageIncidentsView::ownerOf(const Incident& opened)
{
    const auto view = weak_from_this();
    return {.onUpdate =
                [view](const Incident& changed) {
                    if (const auto self = view.lock()) self->takeBack(changed);
                },
        .dismiss =
            [view, id = opened.id] {
                if (const auto self = view.lock()) self->dismiss(id);
            }};
}

bool StatusPageIncidentsView::isPresented(const std::string& id) const
{
    return *presentedIncident && (*presentedIncident)->id == id;
}

void StatusPageIncidentsView::takeBack(const Incident& changed)
{
    if (!isPresented(changed.id)) return loadIfInSight();
    presentedIncident = changed;
    detail_->show(changed);
}

void StatusPageIncidentsView::dismiss(const std::string& id)
{
    if (!isPresented(id)) return loadIfInSight();
    closeIncident();
}

// A request that the user did not wait for ends behind the list, which was loaded before it, or behind another
// incident.
void StatusPageIncidentsView::loadIfInSight()
{
    if (!*presentedIncident) viewModel->load();
}

void StatusPageIncidentsView::closeIncident()
{
    if (!*presentedIncident) return;
    presentedIncident = std::nullopt;
    detail_.reset();
    appear();
}

void StatusPageIncidentsView::openCreateIncident()
{
    if (*showCreateIncident) return;
    const presentation::ComponentSelection::Ports selection{
        ports_.main, ports_.components, ports_.monitors, ports_.locale};
    form_ = std::make_shared<CreateIncidentView>(
        CreateIncidentView::Ports{ports_.incidents, selection}, viewModel->pageId, ownerOfForm());
    form_->appear();
    showCreateIncident = true;
}

CreateIncidentView::Owner StatusPageIncidentsView::ownerOfForm()
{
    const auto view = weak_from_this();
    return {.onCreated =
                [view](const Incident& created) {
                    if (const auto self = view.lock()) self->viewModel->insertFirst(created);
                },
        .dismiss =
            [view] {
                if (const auto self = view.lock()) self->closeCreateIncident();
            }};
}

void StatusPageIncidentsView::closeCreateIncident()
{
    if (!*showCreateIncident) return;
    showCreateIncident = false;
    form_.reset();
}

bool StatusPageIncidentsView::hasUnsavedText() const
{
    return (detail_ && detail_->hasUnsavedText()) || (form_ && form_->hasUnsavedText());
}

}  // namespace larkspan::incidents
