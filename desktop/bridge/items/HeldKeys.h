#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

namespace larkspan::bridge {

/// Makes a key that is held down press only once, whatever has the focus when the key is repeated: otherwise an action
/// would run again as soon as its button is enabled, and the alert about its end would be dismissed unread. Typing and
/// moving follow each repeat.
class HeldKeys : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// The window whose keys are filtered, including those of its popups.
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
