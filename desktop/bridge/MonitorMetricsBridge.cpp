#include "bridge/MonitorMetricsBridge.h"

#include <utility>

#include "bridge/ValueList.h"

namespace larkspan::bridge {

MonitorMetricsBridge::MonitorMetricsBridge(
    std::shared_ptr<monitors::MonitorRowView> view, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , view_(std::move(view))
{
    followChangesOf(*view_);
    MonitorMetricsBridge::readState();
}

void MonitorMetricsBridge::readState()
{
    instead_ = MarkerValue::of(view_->instead());
    figures_ = valuesOf<MetricRowValue>(view_->figures());
    regions_ = valuesOf<RegionRowValue>(view_->regions());
}

}  // namespace larkspan::bridge
