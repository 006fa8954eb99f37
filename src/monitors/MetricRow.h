#pragma once

#include <string>
#include <vector>

#include "model/records/MonitorMetricsWindow.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::monitors {

/// One figure of an open row.
struct MetricRow {
    std::string label{};
    std::string value{};
    presentation::Tone valueColor = presentation::Tone::blue;

    bool operator==(const MetricRow&) const = default;
};

/// In the order of the panel; missing figures are left out.
std::vector<MetricRow> metricRows(const model::MonitorMetricsWindow& metrics);

}  // namespace larkspan::monitors
