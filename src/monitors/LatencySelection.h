#pragma once

#include <optional>
#include <vector>

#include "monitors/LatencyDataPoint.h"

namespace larkspan::monitors {

/// The index of the point that is nearest to a place on the axis of indexes, the earlier one of two at the same
/// distance; empty if there are no points.
std::optional<int> nearestIndex(const std::vector<LatencyDataPoint>& points, double position);

/// The keyboard's moves of the selection. A page is a tenth of the samples; as in every slider, moves stop at the ends.
enum class LatencyMove { previous, next, pageBack, pageForward, first, last };

/// The selection after a move. Without a selection, a move starts at the end from which it comes.
std::optional<int> movedIndex(int count, std::optional<int> selectedIndex, LatencyMove move);

}  // namespace larkspan::monitors
