#include "bridge/maintenances/StatusPageMaintenancesBridge.h"

#include <utility>

namespace larkspan::bridge {

StatusPageMaintenancesBridge::StatusPageMaintenancesBridge(
    std::shared_ptr<maintenances::StatusPageMaintenancesView> view, const ScreenUpdates& updates, QObject* parent)
    : ListBridge(view, updates, parent)
    , view_(std::move(view))
{
    StatusPageMaintenancesBridge::readState();
}

void StatusPageMaintenancesBridge::readState()
{
    ListBridge::readState();
    rows_.update(view_->rows());
    detail_.follow(view_->detail(), updates());
    form_.follow(view_->form(), updates());
}

}  // namespace larkspan::bridge
