#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "model/records/MonitorMetricsWindow.h"
#include "support/Time.h"

namespace larkspan::monitors {

/// A sample as the latency graph draws it: evenly spaced by `index`, whatever its time.
struct LatencyDataPoint {
    int index = 0;
    /// In milliseconds.
    std::int64_t value = 0;
    std::optional<support::Time> timestamp{};

    bool operator==(const LatencyDataPoint&) const = default;
};

/// The samples of `metrics` with their times where it has such, even if there are none among them, else those of
/// `latency` without.
std::vector<LatencyDataPoint> latencyDataPoints(
    const std::vector<std::int64_t>& latency, const std::optional<model::MonitorMetricsWindow>& metrics);

}  // namespace larkspan::monitors
