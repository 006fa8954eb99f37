#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>

namespace larkspan::bridge {

/// The soft shadow of a box with round corners, which falls a little below it.
struct ShadowShape {
    QColor color{};
    /// The radius of the box's corners.
    qreal radius = 0;
    /// How far the shadow reaches beyond the box.
    qreal reach = 0;

    qreal drop() const { return reach / 4; }
    /// The size of a picture's corner, which holds all that is curved.
    int corner() const;
    /// What the shadow of `box` covers.
    QRectF around(const QRectF& box) const;

    bool operator==(const ShadowShape&) const = default;
};

/// The shadow of the smallest box, whose middle row and column can be stretched for any other one. Nothing is painted
/// where the box is, so that a box that fades in shows no shadow through itself.
QImage shadowPicture(const ShadowShape& shape);

}  // namespace larkspan::bridge
