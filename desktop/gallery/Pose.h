#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace larkspan::gallery {

/// The place of a specimen on the sheet of the kit, and the state in which its picture shows it: "hovered", "pressed"
/// or "focused". There is only one pointer and one focus, so each such state is brought about, rendered and put into
/// the picture one after the other. With any other kind, the specimen is shown as it is.
class Pose : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString kind MEMBER kind_ NOTIFY kindChanged)
    Q_PROPERTY(QQuickItem* target READ target WRITE setTarget NOTIFY targetChanged)
    Q_PROPERTY(qreal reach MEMBER reach_ NOTIFY reachChanged)

public:
    using QQuickItem::QQuickItem;

    QString kind() const { return kind_; }
    bool isTaken() const { return kind_ == u"hovered" || kind_ == u"pressed" || kind_ == u"focused"; }

    QQuickItem* target() const { return target_; }
    void setTarget(QQuickItem* target);

    /// The part of the window that shows the specimen, with a focus ring around it.
    QRectF frame() const;

signals:
    void kindChanged();
    void targetChanged();
    void reachChanged();

private:
    QString kind_;
    QPointer<QQuickItem> target_;
    /// How far a ring may lie beyond the specimen.
    qreal reach_ = 6;
};

}  // namespace larkspan::gallery
