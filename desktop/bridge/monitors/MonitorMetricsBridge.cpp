#include "bridge/monitors/MonitorMetricsBridge.h"

#include <utility>

#include "bridge/lists/ValueList.h"

namespace larkspan::bridge {

MonitorMetricsBridge::MonitorMetricsBridge(
    std::shared_ptr<monitors::MonitorRowView> view, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , view_(std::move(view))
{
    followChangesOf(*view_);
    followChangesOf(view_->selection);
    MonitorMetricsBridge::readState();
}

void MonitorMetricsBridge::readState()
{
    instead_ = MarkerValue::of(view_->instead());
    graph_ = LatencyGraphValue::of(view_->latencyGraph());
    figures_ = valuesOf<MetricRowValue>(view_->figures());
    regions_ = valuesOf<RegionRowValue>(view_->regions());
}

}  // namespace larkspan::bridge
