#include "monitors/MonitorRowView.h"

#include <exception>
#include <utility>

#include "support/LocalizedError.h"

namespace larkspan::monitors {

using presentation::Marker;
using support::Task;

MonitorRowView::MonitorRowView(platform::Executor& main, api::MonitorEndpoints& api, std::string monitorID)
    : main_(main)
    , api_(api)
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
    support::start(main_, loadMetrics(shared_from_this()));
}

Task<void> MonitorRowView::loadMetrics(std::shared_ptr<MonitorRowView> self)
{
    try {
        std::vector ids{self->monitorID_};
        auto fetching = self->api_.fetchMonitorMetrics(std::move(ids), range);
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

std::vector<MetricRow> MonitorRowView::figures() const
{
    return metrics->has_value() ? metricRows(**metrics) : std::vector<MetricRow>{};
}

std::vector<RegionRow> MonitorRowView::regions() const
{
    return metrics->has_value() ? regionRows(**metrics) : std::vector<RegionRow>{};
}

}  // namespace larkspan::monitors
