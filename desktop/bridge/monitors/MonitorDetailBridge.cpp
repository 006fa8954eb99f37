#include "bridge/monitors/MonitorDetailBridge.h"

#include <utility>

#include "bridge/lists/ValueList.h"

namespace larkspan::bridge {

MonitorDetailBridge::MonitorDetailBridge(
    std::shared_ptr<monitors::MonitorDetailView> view, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , view_(std::move(view))
{
    followChangesOf(*view_);
    MonitorDetailBridge::readState();
}

void MonitorDetailBridge::readState()
{
    pills_ = valuesOf<PillValue>(view_->pills());
    details_ = valuesOf<FactValue>(view_->details());
    lastCheck_ = FactValue::of(view_->lastCheck());
    buttons_ = valuesOf<ActionButtonValue>(view_->buttons());
}

}  // namespace larkspan::bridge
