#include "bridge/maintenances/StatusPageMaintenancesBridge.h"

#include <utility>

#include "bridge/lists/RowListModel.h"
#include "bridge/maintenances/CreateMaintenanceBridge.h"
#include "bridge/maintenances/MaintenanceDetailBridge.h"
#include "bridge/maintenances/MaintenanceRowValue.h"

namespace larkspan::bridge {

StatusPageMaintenancesBridge::StatusPageMaintenancesBridge(
    std::shared_ptr<maintenances::StatusPageMaintenancesView> view, const ScreenUpdates& updates, QObject* parent)
    : ListBridge(view, updates, parent)
    , view_(std::move(view))
    , rows_(new RowListModel<MaintenanceRowValue>(this))
{
    StatusPageMaintenancesBridge::readState();
}

ListModel* StatusPageMaintenancesBridge::rows()
{
    return rows_;
}

void StatusPageMaintenancesBridge::readState()
{
    ListBridge::readState();
    rows_->update(view_->rows());
    detail_.follow(view_->detail(), updates());
    form_.follow(view_->form(), updates());
}

}  // namespace larkspan::bridge
