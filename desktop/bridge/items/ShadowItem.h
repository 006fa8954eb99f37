#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

#include "bridge/items/ShadowPicture.h"

namespace larkspan::bridge {

/// The soft shadow of a box that has this item's size. It is painted around the item, as eight pieces of a small
/// picture: the corners as they are, the sides stretched, so that a large box costs no larger picture.
class ShadowItem : public QQuickItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(Shadow)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY shapeChanged)
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY shapeChanged)
    Q_PROPERTY(qreal reach READ reach WRITE setReach NOTIFY shapeChanged)

public:
    explicit ShadowItem(QQuickItem* parent = nullptr);

    QColor color() const { return shape_.color; }
    void setColor(const QColor& color);
    qreal radius() const { return shape_.radius; }
    void setRadius(qreal radius);
    qreal reach() const { return shape_.reach; }
    void setReach(qreal reach);

signals:
    void shapeChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData*) override;
    void geometryChange(const QRectF& wanted, const QRectF& held) override;

private:
    void become(const ShadowShape& shape);

    ShadowShape shape_;
};

}  // namespace larkspan::bridge
