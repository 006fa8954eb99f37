#include "bridge/metrics/LatencyStroke.h"

#include <cmath>
#include <cstddef>

#include "monitors/LatencyPlace.h"

namespace larkspan::bridge {

LatencyStroke::LatencyStroke(const monitors::LatencyCurve& curve, QSize size, double inset, double radius)
    : curve_(curve)
    , size_(size)
    , inset_(inset)
    , curveColumns_(columnOf(size.width()))
    , lineColumns_(columnOf(size.width()))
{
    auto from = spotOf(curve.points.front());
    for (const auto& point : curve.points) {
        const auto to = spotOf(point);
        follow(from, to);
        from = to;
    }
    widen(radius);
}

double LatencyStroke::yOf(double value) const
{
    return size_.height() - inset_ - curve_.domain.shareOf(value) * (size_.height() - 2 * inset_);
}

LatencyStroke::Spot LatencyStroke::spotOf(const monitors::LatencyDataPoint& point) const
{
    const double x = inset_ + monitors::latencyX(point.index, curve_.count(), size_.width() - 2 * inset_);
    return {x * columnsPerPixel, yOf(static_cast<double>(point.value))};
}

void LatencyStroke::follow(Spot from, Spot to)
{
    const auto columnAt = [this](double x) {
        return static_cast<std::size_t>(std::clamp(x, 0.0, static_cast<double>(curveColumns_.size() - 1)));
    };
    const auto first = columnAt(from.x);
    const auto last = columnAt(to.x);
    curveColumns_[first].include(from.y);
    curveColumns_[last].include(to.y);
    // Both columns at an edge contain the point where the curve crosses it.
    for (auto edge = first + 1; edge <= last; ++edge) {
        const double y = from.y + (to.y - from.y) * (static_cast<double>(edge) - from.x) / (to.x - from.x);
        curveColumns_[edge - 1].include(y);
        curveColumns_[edge].include(y);
    }
}

void LatencyStroke::widen(double radius)
{
    const auto columns = static_cast<std::ptrdiff_t>(curveColumns_.size());
    const auto reach = static_cast<std::ptrdiff_t>(radius * columnsPerPixel);
    for (auto offset = -reach; offset <= reach; ++offset) {
        const double beside = static_cast<double>(offset) / columnsPerPixel;
        const double half = std::sqrt(radius * radius - beside * beside);
        const auto end = std::min(columns, columns - offset);
        for (auto column = std::max<std::ptrdiff_t>(0, -offset); column < end; ++column) {
            const auto& disc = curveColumns_[static_cast<std::size_t>(column + offset)];
            auto& line = lineColumns_[static_cast<std::size_t>(column)];
            line.top = std::min(line.top, disc.top - half);
            line.bottom = std::max(line.bottom, disc.bottom + half);
        }
    }
}

}  // namespace larkspan::bridge
