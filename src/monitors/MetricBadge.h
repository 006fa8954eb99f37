#pragma once

#include <string>
#include <vector>

#include "model/records/MonitorMetricsWindow.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::monitors {

/// One figure of a closed row, on a tint of its own colour.
struct MetricBadge {
    std::string icon{};
    std::string value{};
    std::string label{};
    presentation::Tone color = presentation::Tone::blue;
    /// Whether it is a `TrendBadge`, whose icon is closer to the text.
    bool isTrend = false;

    bool operator==(const MetricBadge&) const = default;
};

/// A direction instead of a figure.
struct TrendBadge {
    std::string trend{};
    std::string label{};

    MetricBadge drawn() const;
};

/// In the order of the row; missing figures are left out.
std::vector<MetricBadge> metricBadges(const model::MonitorMetricsWindow& metrics);

}  // namespace larkspan::monitors
