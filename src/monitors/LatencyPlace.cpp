#include "monitors/LatencyPlace.h"

#include <algorithm>

namespace larkspan::monitors {

double latencyX(int index, int count, double plotWidth)
{
    return count > 1 ? plotWidth * index / (count - 1) : plotWidth / 2;
}

std::optional<double> latencyPosition(double x, int count, double plotWidth)
{
    if (plotWidth <= 0) return std::nullopt;
    return count > 1 ? x * (count - 1) / plotWidth : 0;
}

double calloutLeft(double x, double calloutWidth, double graphWidth)
{
    return std::clamp(x - calloutWidth / 2, 0.0, std::max(0.0, graphWidth - calloutWidth));
}

}  // namespace larkspan::monitors
