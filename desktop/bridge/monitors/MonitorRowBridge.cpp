#include "bridge/monitors/MonitorRowBridge.h"

#include <utility>

namespace larkspan::bridge {

MonitorRowBridge::MonitorRowBridge(
    std::shared_ptr<monitors::MonitorRowView> view, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , updates_(updates)
    , view_(std::move(view))
{
    followChangesOf(*view_);
    MonitorRowBridge::readState();
}

void MonitorRowBridge::readState()
{
    panel_.follow(view_->panel(), updates_);
    instead_ = MarkerValue::of(view_->instead());
}

}  // namespace larkspan::bridge
