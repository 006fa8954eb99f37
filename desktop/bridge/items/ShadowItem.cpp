#include "bridge/items/ShadowItem.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace larkspan::bridge {

namespace {

/// Kept, since the same few menus and dialogs are opened again and again. Never asked for by two threads at once.
QImage pictureOf(const ShadowShape& shape)
{
    static std::vector<std::pair<ShadowShape, QImage>> pictures;
    const auto found = std::ranges::find(pictures, shape, &std::pair<ShadowShape, QImage>::first);
    if (found != pictures.end()) return found->second;
    return pictures.emplace_back(shape, shadowPicture(shape)).second;
}

class ShadowNode : public QSGNode {
public:
    ShadowNode(QQuickWindow& window, const ShadowShape& shape)
        : shape_(shape)
        , texture_(window.createTextureFromImage(pictureOf(shape)))
    {
        for (auto*& piece : pieces_) {
            piece = window.createImageNode();
            piece->setTexture(texture_.get());
            // The sides are alike all along, so there is nothing to smooth, which would cost ten times as much.
            piece->setFiltering(QSGTexture::Nearest);
            appendChildNode(piece);
        }
    }

    const ShadowShape& shape() const { return shape_; }

    /// The pieces end at pixels, of which `ratio` make a point: two that share one would darken it twice.
    void surround(const QSizeF& box, qreal ratio)
    {
        const auto atPixel = [ratio](qreal length) { return std::round(length * ratio) / ratio; };
        const auto whole = shape_.around({0, 0, atPixel(box.width()), atPixel(box.height())});
        const QRectF picture({}, texture_->textureSize());
        std::size_t at = 0;
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 3; ++column) {
                if (row == 1 && column == 1) continue;
                auto& piece = *pieces_[at++];
                piece.setSourceRect(part(picture, row, column));
                piece.setRect(part(whole, row, column));
            }
        }
    }

private:
    /// One of the nine parts of `whole`, whose corners all have the size of the picture's.
    QRectF part(const QRectF& whole, int row, int column) const
    {
        const qreal corner = shape_.corner();
        const std::array acrosses{whole.left(), whole.left() + corner, whole.right() - corner, whole.right()};
        const std::array downs{whole.top(), whole.top() + corner, whole.bottom() - corner, whole.bottom()};
        const auto across = static_cast<std::size_t>(column);
        const auto down = static_cast<std::size_t>(row);
        return {QPointF(acrosses[across], downs[down]), QPointF(acrosses[across + 1], downs[down + 1])};
    }

    ShadowShape shape_;
    std::unique_ptr<QSGTexture> texture_;
    std::array<QSGImageNode*, 8> pieces_{};
};

}  // namespace

ShadowItem::ShadowItem(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void ShadowItem::setColor(const QColor& color)
{
    auto shape = shape_;
    shape.color = color;
    become(shape);
}

void ShadowItem::setRadius(qreal radius)
{
    auto shape = shape_;
    shape.radius = radius;
    become(shape);
}

void ShadowItem::setReach(qreal reach)
{
    auto shape = shape_;
    shape.reach = reach;
    become(shape);
}

void ShadowItem::become(const ShadowShape& shape)
{
    if (shape_ == shape) return;
    shape_ = shape;
    emit shapeChanged();
    update();
}

void ShadowItem::geometryChange(const QRectF& wanted, const QRectF& held)
{
    QQuickItem::geometryChange(wanted, held);
    update();
}

QSGNode* ShadowItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData*)
{
    auto* shadow = static_cast<ShadowNode*>(node);
    const auto around = shape_.around(boundingRect());
    const bool hasRoom = std::min(around.width(), around.height()) >= 2 * shape_.corner();
    if (shadow && (!hasRoom || shadow->shape() != shape_)) {
        delete shadow;
        shadow = nullptr;
    }
    if (!hasRoom || shape_.reach <= 0) return nullptr;
    if (!shadow) shadow = new ShadowNode(*window(), shape_);
    shadow->surround(size(), window()->effectiveDevicePixelRatio());
    return shadow;
}

}  // namespace larkspan::bridge
