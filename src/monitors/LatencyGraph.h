#pragma once

#include <memory>
#include <optional>

#include "monitors/LatencyCallout.h"
#include "monitors/LatencyCurve.h"

namespace larkspan::monitors {

/// A latency graph as a row shows it.
struct LatencyGraph {
    /// Null where there is no graph.
    std::shared_ptr<const LatencyCurve> curve{};
    /// Of a point that the curve has.
    std::optional<int> selectedIndex{};
    /// Of the selected point.
    LatencyCallout callout{};

    static LatencyGraph of(std::shared_ptr<const LatencyCurve> curve, std::optional<int> selectedLatencyIndex,
        const platform::LocaleText& locale);

    bool operator==(const LatencyGraph&) const = default;
};

}  // namespace larkspan::monitors
