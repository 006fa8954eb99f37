#include "bridge/MaintenanceListBridge.h"

#include <utility>

namespace larkspan::bridge {

MaintenanceListBridge::MaintenanceListBridge(
    std::shared_ptr<maintenances::StatusPageMaintenancesView> view, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , view_(std::move(view))
    , updates_(updates)
{
    followChangesOf(*view_);
    MaintenanceListBridge::readState();
}

void MaintenanceListBridge::readState()
{
    placeholder_ = PlaceholderValue::of(view_->placeholder());
    rows_.update(view_->rows());
    detail_.follow(view_->detail(), updates_);
    form_.follow(view_->form(), updates_);
}

}  // namespace larkspan::bridge
