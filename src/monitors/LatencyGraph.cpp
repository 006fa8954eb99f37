#include "monitors/LatencyGraph.h"

#include <utility>

namespace larkspan::monitors {

LatencyGraph LatencyGraph::of(std::shared_ptr<const LatencyCurve> curve, std::optional<int> selectedLatencyIndex,
    const platform::LocaleText& locale)
{
    LatencyGraph graph{.curve = std::move(curve)};
    const auto index = selectedLatencyIndex.value_or(-1);
    if (index < 0 || index >= graph.curve->count()) return graph;
    graph.selectedIndex = index;
    graph.callout = LatencyCallout::of(graph.curve->points[static_cast<std::size_t>(index)], locale);
    return graph;
}

}  // namespace larkspan::monitors
