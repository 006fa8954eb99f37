#pragma once

#include <optional>

namespace larkspan::monitors {

/// How far from the plot's left edge a sample stands, in a plot of that width: the first at the left edge, the last at
/// the right one, and one that is alone in the middle.
double latencyX(int index, int count, double plotWidth);

/// The place on the axis of indexes at `x` from the plot's left edge: no whole number as a rule, and beyond the first
/// and the last index where `x` is beyond the plot. None where there is no plot.
std::optional<double> latencyPosition(double x, int count, double plotWidth);

/// Where the left edge of a callout goes that is to be centred over `x`: it stays inside the graph from side to side,
/// and begins at its left edge if it is wider.
double calloutLeft(double x, double calloutWidth, double graphWidth);

}  // namespace larkspan::monitors
