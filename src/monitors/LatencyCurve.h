#pragma once

#include <memory>
#include <vector>

#include "monitors/LatencyDataPoint.h"

namespace larkspan::monitors {

/// The values that a graph's vertical axis spans.
struct LatencyDomain {
    double lower = 0;
    double upper = 1;

    /// The relative place of a value: 0 at the bottom of the plot, 1 at its top.
    double shareOf(double value) const { return (value - lower) / (upper - lower); }

    bool operator==(const LatencyDomain&) const = default;
};

/// The domain for `points`: it includes zero, since the area starts at zero, and both ends are round numbers, so that
/// graphs of similar monitors look alike. If all values are zero it ends at 1, and the line is at the bottom.
LatencyDomain latencyDomain(const std::vector<LatencyDataPoint>& points);

struct LatencyCurve {
    std::vector<LatencyDataPoint> points{};
    LatencyDomain domain{};

    static std::shared_ptr<const LatencyCurve> of(std::vector<LatencyDataPoint> points);

    int count() const { return static_cast<int>(points.size()); }

    bool operator==(const LatencyCurve&) const = default;
};

}  // namespace larkspan::monitors
