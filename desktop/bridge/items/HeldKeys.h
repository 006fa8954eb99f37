#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

namespace larkspan::bridge {

/// A key that is held down presses once, whatever has the keyboard by the time it is repeated: an order would else be
/// given again as soon as its button is enabled, and the alert that tells how it ended dismissed unread. Text takes
/// each repeat, and so does what moves.
class HeldKeys : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// Whose keys these are, those of its popups included.
    Q_PROPERTY(QQuickWindow* window READ window WRITE setWindow NOTIFY windowChanged)

public:
    using QObject::QObject;

    QQuickWindow* window() const { return window_; }
    void setWindow(QQuickWindow* window);

signals:
    void windowChanged();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool isForText(Qt::Key key) const;

    QPointer<QQuickWindow> window_;
};

}  // namespace larkspan::bridge
