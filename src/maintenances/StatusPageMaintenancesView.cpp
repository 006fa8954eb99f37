#include "maintenances/StatusPageMaintenancesView.h"

#include <utility>

#include "maintenances/CreateMaintenanceView.h"
#include "maintenances/MaintenanceDetailView.h"
#include "maintenances/MaintenanceRow.h"
#include "presentation/screens/RowsOf.h"
#include "support/WhileAlive.h"

namespace larkspan::maintenances {

using model::Maintenance;
using support::whileAlive;

StatusPageMaintenancesView::StatusPageMaintenancesView(Ports ports, const std::string& pageId)
    : ListScreen(ports.credentials,
          {.loading = "Loading Maintenances...",
              .empty = {.symbol = "calendar.badge.clock",
                  .title = "No scheduled maintenances",
                  .text = "Maintenance windows will appear here."}})
    , viewModel(std::make_shared<StatusPageMaintenancesViewModel>(ports.main, ports.api, pageId))
    , ports_(ports)
{
}

std::vector<MaintenanceRow> StatusPageMaintenancesView::rows() const
{
    return presentation::rowsOf(*viewModel->maintenances,
        [this](const Maintenance& maintenance) { return MaintenanceRow::of(maintenance, ports_.locale); });
}

void StatusPageMaintenancesView::openMaintenance(const std::string& id)
{
    const auto* const opened = viewModel->maintenances.find(id);
    if (!opened) return;
    presentedMaintenance.open(detailOf(*opened));
}

std::vector<std::shared_ptr<presentation::GuardedScreen>> StatusPageMaintenancesView::inFront() const
{
    return {detail(), form()};
}

std::shared_ptr<MaintenanceDetailView> StatusPageMaintenancesView::detailOf(const Maintenance& opened)
{
    const MaintenanceDetailView::Ports ports{ports_.main, ports_.api, ports_.clock, ports_.locale, ports_.links};
    const auto view = weak_from_this();
    MaintenanceDetailView::Owner owner{.onUpdate = whileAlive(view,
                                           [](StatusPageMaintenancesView& self, const Maintenance& updated) {
                                               self.viewModel->maintenances.replace(updated);
                                           }),
        .onDelete = whileAlive(view, &StatusPageMaintenancesView::onDelete),
        .dismiss = whileAlive(view, [id = opened.id](StatusPageMaintenancesView& self) { self.dismiss(id); }),
        .reloadList = whileAlive(view, [](StatusPageMaintenancesView& self) { self.viewModel->load(); })};
    return std::make_shared<MaintenanceDetailView>(ports, opened, std::move(owner));
}

void StatusPageMaintenancesView::onDelete(const Maintenance& deleted)
{
    viewModel->maintenances.remove(deleted.id);
    dismiss(deleted.id);
}

void StatusPageMaintenancesView::dismiss(const std::string& id)
{
    if (presentedMaintenance.isOf(id)) closeMaintenance();
}

void StatusPageMaintenancesView::closeMaintenance()
{
    if (presentedMaintenance.close()) appear();
}

void StatusPageMaintenancesView::openCreateMaintenance()
{
    if (showCreateSheet.isOpen()) return;
    showCreateSheet.open(newForm());
}

std::shared_ptr<CreateMaintenanceView> StatusPageMaintenancesView::newForm()
{
    const CreateMaintenanceView::Ports ports{ports_.api, ports_.clock, ports_.selection()};
    const auto view = weak_from_this();
    CreateMaintenanceView::Owner owner{.onCreated = whileAlive(view,
                                           [](StatusPageMaintenancesView& self, const Maintenance& created) {
                                               self.viewModel->maintenances.insertFirst(created);
                                           }),
        .dismiss = whileAlive(view, [](StatusPageMaintenancesView& self) { self.showCreateSheet.close(); }),
        .reloadList = whileAlive(view, [](StatusPageMaintenancesView& self) { self.viewModel->load(); })};
    return std::make_shared<CreateMaintenanceView>(ports, viewModel->pageId, std::move(owner));
}

}  // namespace larkspan::maintenances
