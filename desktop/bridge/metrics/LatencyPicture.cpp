#include "bridge/metrics/LatencyPicture.h"

#include <algorithm>
#include <cmath>

#include "bridge/metrics/LatencyStroke.h"

namespace larkspan::bridge {

namespace {

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
    /// `base` is the bottom of the area.
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

    /// The line covers the area's edge, which therefore need not be smooth.
    void drawArea(int x, const LatencyStroke::Extent& curve)
    {
        if (curve.isEmpty()) return;
        const int edge = rowOf((curve.top + curve.bottom) / 2);
        const int end = std::min(std::max(edge, base_), groundAt(x));
        for (int y = std::min(edge, base_); y < end; ++y) pixel(x, y) = area_;
    }

    void drawLine(int x, LatencyStroke::Pixel columns)
    {
        LatencyStroke::Extent all;
        for (const auto& column : columns) {
            if (column.isEmpty()) continue;
            all.include(column.top);
            all.include(column.bottom);
        }
        if (all.isEmpty()) return;
        const int end = std::min(height_, static_cast<int>(std::ceil(all.bottom)));
        for (int y = std::max(0, static_cast<int>(all.top)); y < end; ++y)
            pixel(x, y) = blended(pixel(x, y), line_, coverageOf(y, columns));
    }

private:
    static double coverageOf(int y, LatencyStroke::Pixel columns)
    {
        double sum = 0;
        for (const auto& column : columns)
            sum += std::max(0.0, std::min(column.bottom, y + 1.0) - std::max(column.top, y + 0.0));
        return sum / LatencyStroke::columnsPerPixel;
    }

    /// The row at which a corner starts or the picture ends.
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

    const bool isDot = curve.count() == 1;
    const LatencyStroke stroke(curve, size, look.inset, isDot ? look.lineWidth * 1.5 : look.lineWidth / 2);
    Brush brush(picture, look, curve.domain.lower < 0 ? stroke.yOf(0) : size.height());
    for (int x = 0; x < size.width(); ++x) {
        if (!isDot) brush.drawArea(x, stroke.curveAt(x));
        brush.drawLine(x, stroke.lineAt(x));
    }
    return picture;
}

}  // namespace larkspan::bridge
