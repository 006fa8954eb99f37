#pragma once

#include <optional>
#include <vector>

#include "monitors/LatencyDataPoint.h"

namespace larkspan::monitors {

/// The index of the point that is nearest to a place on the axis of indexes, the earlier one of two that are equally
/// near; none where there are no points.
std::optional<int> nearestIndex(const std::vector<LatencyDataPoint>& points, double position);

/// How the keyboard moves the selection. A page is a tenth of the samples; as with every slider it goes up to the end.
enum class LatencyMove { previous, next, pageBack, pageForward, first, last };

/// Where the selection stands after a move. Without a selection a move begins at the end that it comes from.
std::optional<int> movedIndex(int count, std::optional<int> selectedIndex, LatencyMove move);

}  // namespace larkspan::monitors
