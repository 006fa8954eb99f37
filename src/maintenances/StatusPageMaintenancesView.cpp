#include "maintenances/StatusPageMaintenancesView.h"

#include <algorithm>
#include <iterator>

namespace larkspan::maintenances {

using model::Maintenance;
using presentation::Content;
using presentation::Placeholder;
using presentation::Tone;

StatusPageMaintenancesView::StatusPageMaintenancesView(Ports ports, const std::string& pageId)
    : viewModel(std::make_shared<StatusPageMaintenancesViewModel>(ports.main, ports.maintenances, pageId))
    , ports_(ports)
{
}

std::array<support::Subscription, 2> StatusPageMaintenancesView::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), viewModel->objectWillChange(observer)};
}

void StatusPageMaintenancesView::refresh()
{
    ports_.credentials.allowPromptAgain();
    viewModel->load();
}

Placeholder StatusPageMaintenancesView::placeholder() const
{
    switch (content()) {
    case Content::loading: return presentation::loadingPlaceholder("Loading Maintenances...");
    case Content::failure:
        return presentation::failurePlaceholder(
            {.symbol = "exclamationmark.triangle", .tone = Tone::yellow, .offersRetry = true}, *viewModel->error);
    case Content::empty:
        return {.symbol = "calendar.badge.clock",
            .title = "No scheduled maintenances",
            .text = "Maintenance windows will appear here."};
    case Content::records: break;
    }
    return {};
}

std::vector<MaintenanceRow> StatusPageMaintenancesView::rows() const
{
    std::vector<MaintenanceRow> rows;
    rows.reserve(viewModel->maintenances->size());
    std::ranges::transform(*viewModel->maintenances, std::back_inserter(rows),
        [this](const Maintenance& maintenance) { return MaintenanceRow::of(maintenance, ports_.locale); });
    return rows;
}

void StatusPageMaintenancesView::openMaintenance(const std::string& id)
{
    const auto& maintenances = *viewModel->maintenances;
    const auto opened = std::ranges::find(maintenances, id, &Maintenance::id);
    if (opened == maintenances.end()) return;
    const MaintenanceDetailView::Ports ports{
        ports_.main, ports_.maintenances, ports_.clock, ports_.locale, ports_.links};
    detail_ = std::make_shared<MaintenanceDetailView>(ports, *opened, ownerOf(id));
    presentedMaintenance = *opened;
}

MaintenanceDetailView::Owner StatusPageMaintenancesView::ownerOf(const std::string& opened)
{
    const auto view = weak_from_this();
    return {.onUpdate =
                [view](const Maintenance& updated) {
                    if (const auto self = view.lock()) self->viewModel->replace(updated);
                },
        .onDelete =
            [view](const Maintenance& deleted) {
                const auto self = view.lock();
                if (!self) return;
                self->viewModel->remove(deleted.id);
                self->closeMaintenance(deleted.id);
            },
        .dismiss =
            [view, opened] {
                if (const auto self = view.lock()) self->closeMaintenance(opened);
            }};
}

// A request that the user did not wait for ends behind the list, or behind another maintenance, which stays.
void StatusPageMaintenancesView::closeMaintenance(const std::string& id)
{
    if (*presentedMaintenance && (*presentedMaintenance)->id == id) closeMaintenance();
}

void StatusPageMaintenancesView::closeMaintenance()
{
    if (!*presentedMaintenance) return;
    presentedMaintenance = std::nullopt;
    detail_.reset();
    appear();
}

void StatusPageMaintenancesView::openCreateMaintenance()
{
    if (*showCreateSheet) return;
    const presentation::ComponentSelection::Ports selection{
        ports_.main, ports_.components, ports_.monitors, ports_.locale};
    form_ = std::make_shared<CreateMaintenanceView>(
        CreateMaintenanceView::Ports{ports_.maintenances, ports_.clock, selection}, viewModel->pageId, ownerOfForm());
    form_->appear();
    showCreateSheet = true;
}

CreateMaintenanceView::Owner StatusPageMaintenancesView::ownerOfForm()
{
    const auto view = weak_from_this();
    return {.onCreated =
                [view](const Maintenance& created) {
                    if (const auto self = view.lock()) self->viewModel->insertFirst(created);
                },
        .dismiss =
            [view] {
                if (const auto self = view.lock()) self->closeCreateMaintenance();
            }};
}

void StatusPageMaintenancesView::closeCreateMaintenance()
{
    if (!*showCreateSheet) return;
    showCreateSheet = false;
    form_.reset();
}

bool StatusPageMaintenancesView::hasUnsavedText() const
{
    return (detail_ && detail_->hasUnsavedText()) || (form_ && form_->hasUnsavedText());
}

}  // namespace larkspan::maintenances
