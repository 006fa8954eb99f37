#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>

#include <memory>

namespace larkspan {

/// A window with the test's own piece of QML, made of the kit's parts.
class KitWindow {
public:
    /// `body` is the content of a `Window` of 480 by 440 points. Fails the test if the QML does not load.
    explicit KitWindow(const QString& body);

    void settle();
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// The item with this `objectName`; fails the test if there is none.
    QQuickItem& item(const QString& objectName) const;
    QQuickWindow& window() const { return *window_; }
    QVariant property(const char* name) const { return window_->property(name); }
    void setProperty(const char* name, const QVariant& value);

private:
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
};

}  // namespace larkspan
