#pragma once

#include <memory>
#include <vector>

#include "monitors/LatencyDataPoint.h"

namespace larkspan::monitors {

/// The values that a graph's vertical axis spans.
struct LatencyDomain {
    double lower = 0;
    double upper = 1;

    /// Where a value is between them: 0 at the bottom of the plot, 1 at its top.
    double shareOf(double value) const { return (value - lower) / (upper - lower); }

    bool operator==(const LatencyDomain&) const = default;
};

/// Chosen as for any area: zero belongs to it, since an area stands on zero, and both ends are round numbers, so that
/// graphs of similar monitors look alike. Where all is zero it reaches to 1, and the line lies at the bottom.
LatencyDomain latencyDomain(const std::vector<LatencyDataPoint>& points);

/// What a latency graph draws.
struct LatencyCurve {
    std::vector<LatencyDataPoint> points{};
    LatencyDomain domain{};

    static std::shared_ptr<const LatencyCurve> of(std::vector<LatencyDataPoint> points);

    int count() const { return static_cast<int>(points.size()); }

    bool operator==(const LatencyCurve&) const = default;
};

}  // namespace larkspan::monitors
