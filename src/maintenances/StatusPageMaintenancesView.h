#pragma once

#include <memory>
#include <string>
#include <vector>

#include "api/MaintenanceEndpoints.h"
#include "maintenances/StatusPageMaintenancesViewModel.h"
#include "presentation/forms/EventListPorts.h"
#include "presentation/screens/ListScreen.h"
#include "presentation/screens/Opened.h"

namespace larkspan::maintenances {

class CreateMaintenanceView;
class MaintenanceDetailView;
struct MaintenanceRow;

/// The maintenances of one page: their list, the opened maintenance and the form of a new one. Unlike that of
/// incidents, the list applies changes and deletions in front of it at once. Main thread only.
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

    /// Opens the maintenance in that row; does nothing if it no longer exists.
    void openMaintenance(const std::string& id);
    /// Shows the list again, which fetches it.
    void closeMaintenance();
    /// The screen of `presentedMaintenance`; null without one.
    const std::shared_ptr<MaintenanceDetailView>& detail() const { return presentedMaintenance.screen(); }

    void openCreateMaintenance();
    /// The sheet's screen; null while it is closed.
    const std::shared_ptr<CreateMaintenanceView>& form() const { return showCreateSheet.screen(); }

private:
    presentation::FetchedRecords& fetched() const override { return *viewModel; }
    std::vector<std::shared_ptr<presentation::GuardedScreen>> inFront() const override;

    std::shared_ptr<MaintenanceDetailView> detailOf(const model::Maintenance& opened);
    std::shared_ptr<CreateMaintenanceView> newForm();
    void onDelete(const model::Maintenance& deleted);
    void dismiss(const std::string& id);

    const Ports ports_;
};

}  // namespace larkspan::maintenances
