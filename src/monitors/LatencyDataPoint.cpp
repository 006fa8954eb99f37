#include "monitors/LatencyDataPoint.h"

namespace larkspan::monitors {

std::vector<LatencyDataPoint> latencyDataPoints(
    const std::vector<std::int64_t>& latency, const std::optional<model::MonitorMetricsWindow>& metrics)
{
    std::vector<LatencyDataPoint> points;
    int index = 0;
    if (metrics && metrics->latencyPoints) {
        points.reserve(metrics->latencyPoints->size());
        for (const auto& sample : *metrics->latencyPoints) points.push_back({index++, sample.value, sample.timestamp});
    } else {
        points.reserve(latency.size());
        for (const auto value : latency) points.push_back({index++, value, std::nullopt});
    }
    return points;
}

}  // namespace larkspan::monitors
