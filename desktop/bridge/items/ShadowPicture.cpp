#include "bridge/items/ShadowPicture.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace larkspan::bridge {

namespace {

/// The distance from `point` to the edge of a box with round corners; negative inside.
qreal distance(QPointF point, const QRectF& box, qreal radius)
{
    const auto fromMiddle = point - box.center();
    const auto beside = std::abs(fromMiddle.x()) - box.width() / 2 + radius;
    const auto above = std::abs(fromMiddle.y()) - box.height() / 2 + radius;
    const auto outside = std::hypot(std::max(beside, 0.0), std::max(above, 0.0));
    return outside + std::min(std::max(beside, above), 0.0) - radius;
}

}  // namespace

int ShadowShape::corner() const
{
    return static_cast<int>(std::ceil(reach + drop() + radius + 1));
}

QRectF ShadowShape::around(const QRectF& box) const
{
    return box.adjusted(-reach, -reach, reach, reach).translated(0, drop());
}

QImage shadowPicture(const ShadowShape& shape)
{
    const int side = 2 * shape.corner() + 1;
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    const auto lit = QRectF(picture.rect()).adjusted(shape.reach, shape.reach, -shape.reach, -shape.reach);
    const auto box = lit.translated(0, -shape.drop());
    const auto [red, green, blue] = std::array{shape.color.red(), shape.color.green(), shape.color.blue()};
    for (int y = 0; y < side; ++y) {
        auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const QPointF middle(x + 0.5, y + 0.5);
            const auto fading = std::clamp(1 - distance(middle, lit, shape.radius) / shape.reach, 0.0, 1.0);
            // The edge of the box is smooth, so the shadow begins beneath it.
            const auto uncovered = std::clamp(distance(middle, box, shape.radius) + 1.5, 0.0, 1.0);
            const auto alpha = std::lround(shape.color.alpha() * fading * fading * uncovered);
            line[x] = qPremultiply(qRgba(red, green, blue, static_cast<int>(alpha)));
        }
    }
    return picture;
}

}  // namespace larkspan::bridge
