#pragma once

#include <optional>

#include "monitors/LatencyCallout.h"
#include "monitors/LatencyCurve.h"

namespace larkspan::monitors {

/// The selected sample of a latency graph, with what its callout says.
struct SelectedLatency {
    LatencyDataPoint point{};
    LatencyCallout callout{};

    /// None without a selection, or where the curve has no such sample.
    static std::optional<SelectedLatency> of(
        const LatencyCurve& curve, std::optional<int> selectedLatencyIndex, const platform::LocaleText& locale);

    bool operator==(const SelectedLatency&) const = default;
};

}  // namespace larkspan::monitors
