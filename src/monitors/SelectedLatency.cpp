#include "monitors/SelectedLatency.h"

#include <cstddef>

namespace larkspan::monitors {

std::optional<SelectedLatency> SelectedLatency::of(
    const LatencyCurve& curve, std::optional<int> selectedLatencyIndex, const platform::LocaleText& locale)
{
    const auto index = selectedLatencyIndex.value_or(-1);
    if (index < 0 || index >= curve.count()) return std::nullopt;
    const auto& point = curve.points[static_cast<std::size_t>(index)];
    return SelectedLatency{.point = point, .callout = LatencyCallout::of(point, locale)};
}

}  // namespace larkspan::monitors
