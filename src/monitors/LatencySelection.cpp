#include "monitors/LatencySelection.h"

#include <algorithm>
#include <cmath>

namespace larkspan::monitors {

namespace {

bool beginsAtTheFirst(LatencyMove move)
{
    return move == LatencyMove::next || move == LatencyMove::pageForward || move == LatencyMove::first;
}

int stepOf(LatencyMove move, int count)
{
    const int page = std::max(1, count / 10);
    switch (move) {
    case LatencyMove::previous: return -1;
    case LatencyMove::next: return 1;
    case LatencyMove::pageBack: return -page;
    case LatencyMove::pageForward: return page;
    case LatencyMove::first: return -count;
    case LatencyMove::last: break;
    }
    return count;
}

}  // namespace

std::optional<int> nearestIndex(const std::vector<LatencyDataPoint>& points, double position)
{
    if (points.empty()) return std::nullopt;
    const auto distanceOf = [position](const LatencyDataPoint& point) { return std::abs(point.index - position); };
    return std::ranges::min_element(points, {}, distanceOf)->index;
}

std::optional<int> movedIndex(int count, std::optional<int> selectedIndex, LatencyMove move)
{
    if (count == 0) return std::nullopt;
    if (!selectedIndex) return beginsAtTheFirst(move) ? 0 : count - 1;
    return std::clamp(*selectedIndex + stepOf(move, count), 0, count - 1);
}

}  // namespace larkspan::monitors
