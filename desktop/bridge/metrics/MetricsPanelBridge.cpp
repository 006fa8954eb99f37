#include "bridge/metrics/MetricsPanelBridge.h"

#include <utility>

#include "bridge/lists/ValueList.h"

namespace larkspan::bridge {

MetricsPanelBridge::MetricsPanelBridge(
    std::shared_ptr<monitors::MetricsPanel> panel, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , panel_(std::move(panel))
    , figures_(valuesOf<MetricRowValue>(panel_->figures))
    , regions_(valuesOf<RegionRowValue>(panel_->regions))
{
    followChangesOf(*panel_);
    MetricsPanelBridge::readState();
}

void MetricsPanelBridge::readState()
{
    selection_ = SelectedLatencyValue::of(panel_->selectedLatency());
}

}  // namespace larkspan::bridge
