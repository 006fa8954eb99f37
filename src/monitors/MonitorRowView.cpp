#include "monitors/MonitorRowView.h"

#include <exception>
#include <utility>

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
    if (*showingMetrics && !panel()) load();
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
            self->land(std::move(own->second));
    } catch (...) {
        self->metricsLoadError = support::localizedDescription(std::current_exception());
    }
    self->isLoadingMetrics = false;
}

void MonitorRowView::land(model::MonitorMetricsWindow metrics)
{
    panel_ = std::make_shared<MetricsPanel>(std::move(metrics), ports_.locale);
}

Marker MonitorRowView::instead() const
{
    if (!*showingMetrics) return {};
    if (*isLoadingMetrics) return {.text = "Loading monitor metrics…", .showsProgress = true};
    if (panel()) return {};
    return {.symbol = "chart.xyaxis.line",
        .text = metricsLoadError->value_or("No metrics are available for this monitor.")};
}

}  // namespace larkspan::monitors
