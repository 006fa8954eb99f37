#include "bridge/LatencyPicture.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "monitors/LatencyPlace.h"

namespace larkspan::bridge {

namespace {

/// Columns in the width of a pixel: the more of them, the smoother are steep edges.
constexpr int columnsPerPixel = 4;

/// What a column holds of the curve or of its line, in pixels from the top; nothing where `top` is below `bottom`.
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

using Extents = std::vector<Extent>;

struct Spot {
    double x;
    double y;
};

/// Where things are in the picture: x in columns, y in pixels.
class Layout {
public:
    Layout(const monitors::LatencyCurve& curve, QSize size, double inset)
        : curve_(curve)
        , size_(size)
        , inset_(inset)
    {
    }

    std::size_t columns() const { return static_cast<std::size_t>(size_.width() * columnsPerPixel); }

    Spot spotOf(const monitors::LatencyDataPoint& point) const
    {
        const double x = inset_ + monitors::latencyX(point.index, curve_.count(), size_.width() - 2 * inset_);
        return {x * columnsPerPixel, yOf(static_cast<double>(point.value))};
    }

    double yOf(double value) const
    {
        return size_.height() - inset_ - curve_.domain.shareOf(value) * (size_.height() - 2 * inset_);
    }

private:
    const monitors::LatencyCurve& curve_;
    QSize size_;
    double inset_;
};

std::size_t columnAt(double x, const Extents& extents)
{
    return static_cast<std::size_t>(std::clamp(x, 0.0, static_cast<double>(extents.size() - 1)));
}

void include(Spot from, Spot to, Extents& extents)
{
    const auto first = columnAt(from.x, extents);
    const auto last = columnAt(to.x, extents);
    extents[first].include(from.y);
    extents[last].include(to.y);
    // Both columns of an edge between two hold where it is crossed.
    for (auto edge = first + 1; edge <= last; ++edge) {
        const double y = from.y + (to.y - from.y) * (static_cast<double>(edge) - from.x) / (to.x - from.x);
        extents[edge - 1].include(y);
        extents[edge].include(y);
    }
}

Extents extentsOf(const monitors::LatencyCurve& curve, const Layout& layout)
{
    Extents extents(layout.columns());
    auto from = layout.spotOf(curve.points.front());
    for (const auto& point : curve.points) {
        const auto to = layout.spotOf(point);
        include(from, to, extents);
        from = to;
    }
    return extents;
}

/// What a disc covers whose middle is everywhere on the curve.
Extents widened(const Extents& curve, double radius)
{
    const double reach = radius * columnsPerPixel;
    Extents line(curve.size());
    for (int offset = static_cast<int>(-reach); offset <= reach; ++offset) {
        const double half = std::sqrt(radius * radius - std::pow(offset / static_cast<double>(columnsPerPixel), 2));
        const auto begin = static_cast<std::size_t>(std::max(0, -offset));
        const auto end = curve.size() - static_cast<std::size_t>(std::max(0, offset));
        for (auto column = begin; column < end; ++column) {
            const auto& from = curve[column + static_cast<std::size_t>(offset)];
            line[column].top = std::min(line[column].top, from.top - half);
            line[column].bottom = std::max(line[column].bottom, from.bottom + half);
        }
    }
    return line;
}

QRgb blended(QRgb below, QRgb above, double coverage)
{
    const auto mixed = [&](int under, int over) {
        const double covered = over * coverage;
        return static_cast<int>(std::lround(covered + under * (1 - qAlpha(above) * coverage / 255)));
    };
    return qRgba(mixed(qRed(below), qRed(above)), mixed(qGreen(below), qGreen(above)),
        mixed(qBlue(below), qBlue(above)), mixed(qAlpha(below), qAlpha(above)));
}

/// Draws one column of pixels after the other.
class Brush {
public:
    /// The area stands on `base`.
    Brush(QImage& picture, const LatencyLook& look, double base)
        : pixels_(reinterpret_cast<QRgb*>(picture.bits()))
        , stride_(picture.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb)))
        , width_(picture.width())
        , height_(picture.height())
        , line_(qPremultiply(look.lineColor.rgba()))
        , area_(qPremultiply(look.areaColor.rgba()))
        , radius_(look.cornerRadius)
        , base_(rowOf(base))
    {
    }

    /// The line covers the area's edge, which therefore needs no smoothness of its own.
    void drawArea(int x, const Extent& curve)
    {
        if (curve.isEmpty()) return;
        const int edge = rowOf((curve.top + curve.bottom) / 2);
        const int end = std::min(std::max(edge, base_), groundAt(x));
        for (int y = std::min(edge, base_); y < end; ++y) pixel(x, y) = area_;
    }

    void drawLine(int x, const Extent* columns)
    {
        Extent all;
        for (int column = 0; column < columnsPerPixel; ++column) {
            if (columns[column].isEmpty()) continue;
            all.include(columns[column].top);
            all.include(columns[column].bottom);
        }
        if (all.isEmpty()) return;
        const int end = std::min(height_, static_cast<int>(std::ceil(all.bottom)));
        for (int y = std::max(0, static_cast<int>(all.top)); y < end; ++y)
            pixel(x, y) = blended(pixel(x, y), line_, coverageOf(y, columns));
    }

private:
    static double coverageOf(int y, const Extent* columns)
    {
        double sum = 0;
        for (int column = 0; column < columnsPerPixel; ++column)
            sum += std::max(0.0, std::min(columns[column].bottom, y + 1.0) - std::max(columns[column].top, y + 0.0));
        return sum / columnsPerPixel;
    }

    /// Where a corner begins, or the picture ends.
    int groundAt(int x) const
    {
        const double beside = std::max(0.0, radius_ - std::min(x + 0.5, width_ - x - 0.5));
        return rowOf(height_ - radius_ + std::sqrt(radius_ * radius_ - beside * beside));
    }

    int rowOf(double y) const { return std::clamp(static_cast<int>(std::lround(y)), 0, height_); }
    QRgb& pixel(int x, int y) { return pixels_[y * stride_ + x]; }

    QRgb* pixels_;
    qsizetype stride_;
    int width_;
    int height_;
    QRgb line_;
    QRgb area_;
    double radius_;
    int base_;
};

}  // namespace

QImage latencyPicture(const monitors::LatencyCurve& curve, QSize size, const LatencyLook& look)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    if (curve.points.empty() || size.isEmpty()) return picture;

    const Layout layout(curve, size, look.inset);
    const auto extents = extentsOf(curve, layout);
    const auto line = widened(extents, curve.count() > 1 ? look.lineWidth / 2 : look.lineWidth * 1.5);
    Brush brush(picture, look, curve.domain.lower < 0 ? layout.yOf(0) : size.height());
    for (int x = 0; x < size.width(); ++x) {
        const auto column = static_cast<std::size_t>(x * columnsPerPixel);
        if (curve.count() > 1) brush.drawArea(x, extents[column + columnsPerPixel / 2]);
        brush.drawLine(x, &line[column]);
    }
    return picture;
}

}  // namespace larkspan::bridge
