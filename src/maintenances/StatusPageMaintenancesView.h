#pragma once

#include <memory>
#include <string>
#include <vector>

#include "api/MaintenanceEndpoints.h"
#include "maintenances/CreateMaintenanceView.h"
#include "maintenances/MaintenanceDetailView.h"
#include "maintenances/MaintenanceRow.h"
#include "maintenances/StatusPageMaintenancesViewModel.h"
#include "presentation/forms/EventListPorts.h"
#include "presentation/screens/ListScreen.h"
#include "presentation/screens/Opened.h"

namespace larkspan::maintenances {

/// The maintenances of one page: their list, the one that is opened and the form of a new one. Unlike that of
/// incidents, the list takes over at once what is changed or deleted in front of it. Main thread only.
class StatusPageMaintenancesView final : public presentation::ListScreen,
                                         public std::enable_shared_from_this<StatusPageMaintenancesView> {
public:
    struct Ports : presentation::EventListPorts {
        api::MaintenanceEndpoints& api;
    };

    StatusPageMaintenancesView(Ports ports, const std::string& pageId);

    const std::shared_ptr<StatusPageMaintenancesViewModel> viewModel;

    /// The maintenance that is open over the list.
    presentation::Opened<MaintenanceDetailView> presentedMaintenance{*this};
    /// The form of a new maintenance.
    presentation::Opened<CreateMaintenanceView> showCreateSheet{*this};

    std::vector<MaintenanceRow> rows() const;

    /// Opens the maintenance of that row; nothing if it has gone meanwhile.
    void openMaintenance(const std::string& id);
    /// Brings the list back into sight, and so up to date.
    void closeMaintenance();
    /// Of `presentedMaintenance`; null without one.
    const std::shared_ptr<MaintenanceDetailView>& detail() const { return presentedMaintenance.screen(); }

    void openCreateMaintenance();
    /// What the sheet shows; null while it is down.
    const std::shared_ptr<CreateMaintenanceView>& form() const { return showCreateSheet.screen(); }

private:
    presentation::FetchedRecords& fetched() const override { return *viewModel; }
    std::vector<std::shared_ptr<presentation::GuardedScreen>> inFront() const override { return {detail(), form()}; }

    MaintenanceDetailView::Owner ownerOf(const std::string& opened);
    CreateMaintenanceView::Owner ownerOfForm();
    void onDelete(const model::Maintenance& deleted);
    void dismiss(const std::string& id);

    const Ports ports_;
};

}  // namespace larkspan::maintenances
