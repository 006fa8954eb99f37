#include "bridge/maintenances/MaintenanceDetailBridge.h"

#include <utility>

#include "bridge/lists/ValueList.h"

namespace larkspan::bridge {

using maintenances::MaintenanceDetailView;

MaintenanceDetailBridge::MaintenanceDetailBridge(
    std::shared_ptr<MaintenanceDetailView> view, const ScreenUpdates& updates, QObject* parent)
    : EditableDetailBridge(view, updates, parent)
    , view_(std::move(view))
    , message_(view_->message, updates)
    , editedScheduledFor_(view_->editedScheduledFor, updates)
    , editedScheduledUntil_(view_->editedScheduledUntil, updates)
{
    MaintenanceDetailBridge::readState();
}

void MaintenanceDetailBridge::readState()
{
    pills_ = {PillValue::of(view_->status())};
    timeline_ = valuesOf<TimelineRowValue>(view_->timeline());
    recordRows_ = valuesOf<TimelineRowValue>(view_->recordRows());
    message_.show(view_->showsDescription() ? view_->description() : "");
    buttons_ = valuesOf<ActionButtonValue>(view_->buttons());
}

}  // namespace larkspan::bridge
