#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "model/records/MonitorMetricsWindow.h"
#include "support/Time.h"

namespace larkspan::monitors {

/// A sample in a latency graph: evenly spaced by `index`, whatever its time.
struct LatencyDataPoint {
    int index = 0;
    /// In milliseconds.
    std::int64_t value = 0;
    std::optional<support::Time> timestamp{};

    bool operator==(const LatencyDataPoint&) const = default;
};

/// The samples of `metrics` with their times if it has that list, even an empty one; else those of `latency`, without
/// times.
std::vector<LatencyDataPoint> latencyDataPoints(
    const std::vector<std::int64_t>& latency, const std::optional<model::MonitorMetricsWindow>& metrics);

}  // namespace larkspan::monitors
