#pragma once

#include <QSize>

#include <algorithm>
#include <limits>
#include <span>
#include <vector>

#include "monitors/LatencyCurve.h"

namespace larkspan::bridge {

/// A latency curve and the line along it, which is the area that a disc covers as its centre moves along the curve; in
/// columns narrower than a pixel. This takes the same time for any samples, while a painter's stroke takes longer the
/// more often the curve turns.
class LatencyStroke {
public:
    /// More columns make steep edges smoother.
    static constexpr int columnsPerPixel = 4;

    /// The part of a column that is covered, in pixels from the top; nothing if `top` is below `bottom`.
    struct Extent {
        double top = std::numeric_limits<double>::infinity();
        double bottom = -std::numeric_limits<double>::infinity();

        bool isEmpty() const { return top > bottom; }
        void include(double y)
        {
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    };
    using Pixel = std::span<const Extent, columnsPerPixel>;

    /// `curve` must have points and outlive this object. `inset` is the free space on each side of the picture.
    LatencyStroke(const monitors::LatencyCurve& curve, QSize size, double inset, double radius);

    /// The curve in the middle of a column of pixels.
    const Extent& curveAt(int x) const { return curveColumns_[columnOf(x) + columnsPerPixel / 2]; }
    /// The line in a column of pixels.
    Pixel lineAt(int x) const { return Pixel(&lineColumns_[columnOf(x)], columnsPerPixel); }
    double yOf(double value) const;

private:
    /// A place in columns from the left and pixels from the top.
    struct Spot {
        double x;
        double y;
    };

    static std::size_t columnOf(int x) { return static_cast<std::size_t>(x) * columnsPerPixel; }
    Spot spotOf(const monitors::LatencyDataPoint& point) const;
    void follow(Spot from, Spot to);
    void widen(double radius);

    const monitors::LatencyCurve& curve_;
    QSize size_;
    double inset_;
    std::vector<Extent> curveColumns_;
    std::vector<Extent> lineColumns_;
};

}  // namespace larkspan::bridge
