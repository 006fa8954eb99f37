#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "model/json/WireField.h"
#include "support/Time.h"

namespace larkspan::model {

/// One sample of a latency graph, in milliseconds.
struct LatencyPoint {
    WIRE_FIELD(std::int64_t, value);
    WIRE_FIELD(support::Time, timestamp);

    bool operator==(const LatencyPoint&) const = default;
};

/// A monitor's state as seen from one region.
struct RegionState {
    WIRE_FIELD(std::string, regionId);
    WIRE_FIELD(std::optional<std::string>, regionName);
    WIRE_FIELD(std::string, status);
    /// In the service's words; not read as a date.
    WIRE_FIELD(std::optional<std::string>, updated);
    WIRE_FIELD(double, avgMs);

    bool operator==(const RegionState&) const = default;
};

/// A monitor's metrics over a span of time. Each field is read separately: one that cannot be read is absent and does
/// not affect the others, so that a screen shows what is available.
struct MonitorMetricsWindow {
    WIRE_FIELD(std::optional<double>, avgMs, forgiving);
    WIRE_FIELD(std::optional<double>, uptimePercentage, forgiving);
    /// The service's word, or "up", "down" or "stable" for its number; the other trend as well.
    std::optional<std::string> uptimeTrend{};
    std::optional<std::string> responseTimeTrend{};
    WIRE_FIELD(std::optional<double>, responseTimeChange, forgiving);
    WIRE_FIELD(std::optional<std::string>, state, forgiving);
    WIRE_FIELD(std::optional<support::Time>, updated, forgiving);
    WIRE_FIELD(std::optional<std::vector<std::int64_t>>, latency, forgiving);
    WIRE_FIELD(std::optional<std::vector<LatencyPoint>>, latencyPoints, forgiving);
    WIRE_FIELD(std::optional<std::vector<RegionState>>, regionStates, forgiving);
    WIRE_FIELD(std::optional<double>, apdex, forgiving);
    WIRE_FIELD(std::optional<double>, apdexChange, forgiving);

    static void readUptimeTrend(MonitorMetricsWindow& window, const KeyedValue& uptimeTrend);
    static void readResponseTimeTrend(MonitorMetricsWindow& window, const KeyedValue& responseTimeTrend);
    static constexpr std::tuple derivations{
        derived("uptimeTrend", &readUptimeTrend),
        derived("responseTimeTrend", &readResponseTimeTrend),
    };

    bool operator==(const MonitorMetricsWindow&) const = default;
};

}  // namespace larkspan::model
