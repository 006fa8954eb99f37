#include "bridge/maintenances/MaintenanceListBridge.h"

#include <utility>

namespace larkspan::bridge {

MaintenanceListBridge::MaintenanceListBridge(
    std::shared_ptr<maintenances::StatusPageMaintenancesView> view, const ScreenUpdates& updates, QObject* parent)
    : ListBridge(view, updates, parent)
    , view_(std::move(view))
{
    MaintenanceListBridge::readState();
}

void MaintenanceListBridge::readState()
{
    ListBridge::readState();
    rows_.update(view_->rows());
    detail_.follow(view_->detail(), updates());
    form_.follow(view_->form(), updates());
}

}  // namespace larkspan::bridge
