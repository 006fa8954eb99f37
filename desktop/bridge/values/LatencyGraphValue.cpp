#include "bridge/values/LatencyGraphValue.h"

namespace larkspan::bridge {

LatencyGraphValue LatencyGraphValue::of(const monitors::LatencyGraph& graph)
{
    LatencyGraphValue value;
    if (!graph.curve) return value;
    value.curve = graph.curve;
    value.lowestValue = graph.curve->domain.lower;
    value.highestValue = graph.curve->domain.upper;
    if (!graph.selectedIndex) return value;
    value.selectedIndex = *graph.selectedIndex;
    value.selectedValue
        = static_cast<double>(graph.curve->points[static_cast<std::size_t>(*graph.selectedIndex)].value);
    value.value = bridge::words(graph.callout.value);
    value.time = bridge::words(graph.callout.time);
    value.words = bridge::words(graph.callout.words());
    return value;
}

}  // namespace larkspan::bridge
