#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace larkspan::gallery {

class ShownScene;

/// The place on the sheet of the kit where the picture of another window stands: of the one that is declared in it, or
/// of a scene.
class Stand : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString scene MEMBER scene_ NOTIFY sceneChanged)

public:
    using QQuickItem::QQuickItem;

    QString scene() const { return scene_; }
    void show(std::shared_ptr<ShownScene> shown) { shown_ = std::move(shown); }
    QQuickWindow& shown() const;

signals:
    void sceneChanged();

private:
    QString scene_;
    std::shared_ptr<ShownScene> shown_;
};

}  // namespace larkspan::gallery
