#pragma once

#include <memory>
#include <optional>

#include "monitors/LatencyCallout.h"
#include "monitors/LatencyCurve.h"

namespace larkspan::monitors {

/// The latency graph of a row.
struct LatencyGraph {
    /// Null if there is no graph.
    std::shared_ptr<const LatencyCurve> curve{};
    /// The index of an existing point.
    std::optional<int> selectedIndex{};
    /// The callout of the selected point.
    LatencyCallout callout{};

    static LatencyGraph of(std::shared_ptr<const LatencyCurve> curve, std::optional<int> selectedLatencyIndex,
        const platform::LocaleText& locale);

    bool operator==(const LatencyGraph&) const = default;
};

}  // namespace larkspan::monitors
