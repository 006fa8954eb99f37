#include "incidents/StatusPageIncidentsView.h"

#include <utility>

#include "incidents/CreateIncidentView.h"
#include "incidents/IncidentDetailView.h"
#include "incidents/IncidentRow.h"
#include "presentation/screens/RowsOf.h"
#include "support/WhileAlive.h"

namespace larkspan::incidents {

using model::Incident;
using presentation::Tone;
using support::Task;
using support::whileAlive;

StatusPageIncidentsView::StatusPageIncidentsView(Ports ports, const std::string& pageID)
    : ListScreen(ports.credentials,
          {.loading = "Loading Incidents...",
              .empty = {.symbol = "checkmark.shield",
                  .tone = Tone::green,
                  .title = "No Incidents",
                  .text = "All systems are running smoothly."}})
    , viewModel(std::make_shared<StatusPageIncidentsViewModel>(ports.main, ports.api, pageID))
    , ports_(ports)
{
}

std::vector<IncidentRow> StatusPageIncidentsView::rows() const
{
    return presentation::rowsOf(
        *viewModel->incidents, [this](const Incident& incident) { return IncidentRow::of(incident, ports_.locale); });
}

void StatusPageIncidentsView::openIncident(const std::string& id)
{
    const auto* const opened = viewModel->incidents.find(id);
    if (!opened) return;
    presentedIncident.open(detailOf(*opened));
}

std::vector<std::shared_ptr<presentation::GuardedScreen>> StatusPageIncidentsView::inFront() const
{
    return {detail(), form()};
}

std::shared_ptr<IncidentDetailView> StatusPageIncidentsView::detailOf(const Incident& opened)
{
    const IncidentDetailView::Ports ports{ports_.main, ports_.api, ports_.clock, ports_.locale, ports_.links};
    const auto view = weak_from_this();
    IncidentDetailView::Owner owner{.onUpdate = whileAlive(view, &StatusPageIncidentsView::updateDetail),
        .dismiss = whileAlive(view, [id = opened.id](StatusPageIncidentsView& self) { self.dismiss(id); }),
        .reloadList = whileAlive(view, [id = opened.id](StatusPageIncidentsView& self) {
            support::start(self.ports_.main, reloadList(self.shared_from_this(), id));
        })};
    return std::make_shared<IncidentDetailView>(ports, opened, std::move(owner));
}

void StatusPageIncidentsView::updateDetail(const Incident& changed)
{
    if (!presentedIncident.isOf(changed.id)) return loadIfVisible();
    detail()->show(changed);
}

Task<void> StatusPageIncidentsView::reloadList(std::shared_ptr<StatusPageIncidentsView> self, std::string id)
{
    auto loading = self->viewModel->loading();
    co_await std::move(loading);
    const auto* const found = self->viewModel->incidents.find(id);
    // The detail covers the list, so it has to show the result.
    if (found && self->presentedIncident.isOf(id)) self->updateDetail(*found);
}

void StatusPageIncidentsView::dismiss(const std::string& id)
{
    if (!presentedIncident.isOf(id)) return loadIfVisible();
    closeIncident();
}

// A request that the user did not wait for may end while the list, which was loaded before, or another incident is
// shown.
void StatusPageIncidentsView::loadIfVisible()
{
    if (!presentedIncident.isOpen()) viewModel->load();
}

void StatusPageIncidentsView::closeIncident()
{
    if (presentedIncident.close()) appear();
}

void StatusPageIncidentsView::openCreateIncident()
{
    if (showCreateIncident.isOpen()) return;
    showCreateIncident.open(newForm());
}

std::shared_ptr<CreateIncidentView> StatusPageIncidentsView::newForm()
{
    const CreateIncidentView::Ports ports{ports_.api, ports_.selection()};
    const auto view = weak_from_this();
    CreateIncidentView::Owner owner{.onCreated = whileAlive(view,
                                        [](StatusPageIncidentsView& self, const Incident& created) {
                                            self.viewModel->incidents.insertFirst(created);
                                        }),
        .dismiss = whileAlive(view, [](StatusPageIncidentsView& self) { self.showCreateIncident.close(); }),
        .reloadList = whileAlive(view, [](StatusPageIncidentsView& self) { self.viewModel->load(); })};
    return std::make_shared<CreateIncidentView>(ports, viewModel->pageId, std::move(owner));
}

}  // namespace larkspan::incidents
