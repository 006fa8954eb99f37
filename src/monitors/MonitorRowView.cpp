#include "monitors/MonitorRowView.h"

#include <exception>
#include <utility>

#include "monitors/LatencySelection.h"
#include "support/LocalizedError.h"

namespace larkspan::monitors {

using presentation::Marker;
using support::Task;

MonitorRowView::MonitorRowView(Ports ports, std::string monitorID)
    : ports_(ports)
    , monitorID_(std::move(monitorID))
{
}

void MonitorRowView::toggleMetrics()
{
    if (*isLoadingMetrics) return;
    showingMetrics = !*showingMetrics;
    if (*showingMetrics && !metrics->has_value()) load();
}

void MonitorRowView::retry()
{
    if (offersRetry()) load();
}

void MonitorRowView::load()
{
    isLoadingMetrics = true;
    metricsLoadError = std::nullopt;
    support::start(ports_.main, loadMetrics(shared_from_this()));
}

Task<void> MonitorRowView::loadMetrics(std::shared_ptr<MonitorRowView> self)
{
    try {
        std::vector ids{self->monitorID_};
        auto fetching = self->ports_.api.fetchMonitorMetrics(std::move(ids), range);
        auto windows = co_await std::move(fetching);
        const auto own = windows.find(self->monitorID_);
        if (own == windows.end())
            self->metricsLoadError = "The server returned no metrics for this monitor.";
        else
            self->metrics = std::move(own->second);
    } catch (...) {
        self->metricsLoadError = support::localizedDescription(std::current_exception());
    }
    self->isLoadingMetrics = false;
}

Marker MonitorRowView::instead() const
{
    if (!*showingMetrics) return {};
    if (*isLoadingMetrics) return {.text = "Loading monitor metrics…", .showsProgress = true};
    if (metrics->has_value()) return {};
    return {.symbol = "chart.xyaxis.line",
        .text = metricsLoadError->value_or("No metrics are available for this monitor.")};
}

LatencyGraph MonitorRowView::latencyGraph() const
{
    if (!metrics->has_value() || !(*metrics)->latency || (*metrics)->latency->empty()) return {};
    return LatencyGraph::of(LatencyCurve::of(latencyPoints()), *selection.selectedLatencyIndex, ports_.locale);
}

void MonitorRowView::selectLatency(double position)
{
    selection.selectedLatencyIndex = nearestIndex(latencyPoints(), position);
}

std::vector<LatencyDataPoint> MonitorRowView::latencyPoints() const
{
    if (!metrics->has_value()) return {};
    return latencyDataPoints((*metrics)->latency.value_or(std::vector<std::int64_t>()), *metrics);
}

std::vector<MetricRow> MonitorRowView::figures() const
{
    return metrics->has_value() ? metricRows(**metrics) : std::vector<MetricRow>{};
}

std::vector<RegionRow> MonitorRowView::regions() const
{
    return metrics->has_value() ? regionRows(**metrics) : std::vector<RegionRow>{};
}

std::string MonitorRowView::moreRegions() const
{
    return metrics->has_value() ? monitors::moreRegions(**metrics) : "";
}

}  // namespace larkspan::monitors
