#include "service/WireMetrics.h"

#include "service/WireRecord.h"

namespace larkspan::simulator {

namespace {

Json wireLatency(const MonitorMetrics& metrics)
{
    auto latency = Json::array();
    for (const auto& sample : metrics.samples) latency.emplace_back(sample.milliseconds);
    return latency;
}

Json wireSample(const MonitorMetrics::Sample& sample)
{
    return wireRecord({{"value", sample.milliseconds}, {"timestamp", sample.time}});
}

Json wireRegion(const MonitorMetrics::Region& region)
{
    return wireRecord({
        {"region_id", region.id},
        {"region_name", region.name},
        {"status", region.state},
        {"updated", region.updated},
        {"avg_ms", region.averageMs},
    });
}

Json wireTrend(double change, double notable, MetricsForm form)
{
    if (form == MetricsForm::numbers) return change;
    if (change > notable) return "up";
    return change < -notable ? "down" : "stable";
}

Json malformedRegions(const MonitorMetrics& metrics)
{
    auto regions = Json::array();
    for (const auto& region : metrics.regions) {
        regions.push_back(wireRecord({{"region_id", region.id}, {"status", region.state}}));
    }
    return regions;
}

Json malformedFigures(const MonitorMetrics& metrics)
{
    return wireRecord({
        {"avg_ms", std::to_string(metrics.averageMs)},
        {"uptime_percentage", metrics.uptimePercentage},
        {"uptime_trend", true},
        {"response_time_change", metrics.responseTimeChange},
        {"updated", "yesterday"},
        {"apdex", metrics.apdex},
    });
}

Json figures(const MonitorMetrics& metrics, MetricsForm form)
{
    return wireRecord({
        {"avg_ms", metrics.averageMs},
        {"uptime_percentage", metrics.uptimePercentage},
        {"uptime_trend", wireTrend(metrics.uptimeChange, 0.02, form)},
        {"response_time_trend", wireTrend(metrics.responseTimeChange, 5, form)},
        {"response_time_change", metrics.responseTimeChange},
        {"state", metrics.state},
        {"updated", metrics.updated},
        {"apdex", metrics.apdex},
        {"apdex_change", metrics.apdexChange},
    });
}

Json figuresWithGaps(const MonitorMetrics& metrics)
{
    return wireRecord({{"avg_ms", metrics.averageMs}, {"uptime_percentage", Json()}, {"updated", metrics.updated}});
}

void addLists(Json& window, const MonitorMetrics& metrics, MetricsForm form)
{
    auto latency = wireLatency(metrics);
    if (form == MetricsForm::malformed) {
        window["region_states"] = malformedRegions(metrics);
        latency.front() = 12.5;
    } else if (form != MetricsForm::gaps) {
        window["region_states"] = wireList(metrics.regions, wireRegion);
    }
    if (form != MetricsForm::gaps) window["latency_points"] = wireList(metrics.samples, wireSample);
    if (form == MetricsForm::noLatency) latency.clear();
    window["latency"] = std::move(latency);
}

}  // namespace

std::optional<Json> wireWindow(const MonitorMetrics& metrics, MetricsForm form)
{
    auto window = wireFigures(metrics, form);
    if (window && form != MetricsForm::empty) addLists(*window, metrics, form);
    return window;
}

std::optional<Json> wireFigures(const MonitorMetrics& metrics, MetricsForm form)
{
    switch (form) {
    case MetricsForm::words:
    case MetricsForm::numbers:
    case MetricsForm::noLatency: return figures(metrics, form);
    case MetricsForm::gaps: return figuresWithGaps(metrics);
    case MetricsForm::malformed: return malformedFigures(metrics);
    case MetricsForm::empty: return Json::object();
    case MetricsForm::missing: break;
    }
    return std::nullopt;
}

}  // namespace larkspan::simulator
