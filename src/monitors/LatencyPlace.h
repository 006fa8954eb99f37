#pragma once

#include <optional>

namespace larkspan::monitors {

/// The distance of a sample from the left edge of a plot of this width: the first sample is at the left edge, the last
/// one at the right edge, and a single one in the middle.
double latencyX(int index, int count, double plotWidth);

/// The place on the axis of indexes at the distance `x` from the plot's left edge: usually not an integer, and beyond
/// the first or last index if `x` is outside the plot. Empty if there is no plot.
std::optional<double> latencyPosition(double x, int count, double plotWidth);

/// The left edge of a callout that is centred over `x` but stays inside the graph; the graph's left edge if the callout
/// is wider.
double calloutLeft(double x, double calloutWidth, double graphWidth);

}  // namespace larkspan::monitors
