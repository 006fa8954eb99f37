#include "monitors/MetricsPanel.h"

#include <utility>

#include "monitors/LatencyDataPoint.h"
#include "monitors/LatencySelection.h"

namespace larkspan::monitors {

using model::MonitorMetricsWindow;

namespace {

// Whether there is a graph is asked of `latency`, also where it draws other points.
std::shared_ptr<const LatencyCurve> curveOf(const MonitorMetricsWindow& metrics)
{
    if (!metrics.latency || metrics.latency->empty()) return nullptr;
    return LatencyCurve::of(latencyDataPoints(*metrics.latency, metrics));
}

}  // namespace

MetricsPanel::MetricsPanel(MonitorMetricsWindow window, const platform::LocaleText& locale)
    : metrics(std::move(window))
    , curve(curveOf(metrics))
    , figures(metricRows(metrics))
    , regions(regionRows(metrics))
    , moreRegions(monitors::moreRegions(metrics))
    , locale_(locale)
{
}

void MetricsPanel::selectLatency(double position)
{
    selectedLatencyIndex = curve ? nearestIndex(curve->points, position) : std::nullopt;
}

std::optional<SelectedLatency> MetricsPanel::selectedLatency() const
{
    return curve ? SelectedLatency::of(*curve, *selectedLatencyIndex, locale_) : std::nullopt;
}

}  // namespace larkspan::monitors
