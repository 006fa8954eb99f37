#include "KitWindow.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QTest>

#include <stdexcept>

#include "bridge/items/ItemAccess.h"

namespace larkspan {

KitWindow::KitWindow(const QString& body)
{
    // As the program does, before anything asks for an item's accessible interface.
    bridge::reportUnreachableItems();
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine_);
    const auto text
        = QStringLiteral("import QtQuick\nimport Larkspan.Bridge\nimport Larkspan.Bridge.Metrics\nimport Larkspan.Kit\n"
                         "import Larkspan.Monitors\nWindow {\nid: window\n"
                         "width: 480; height: 440\nproperty bool hasMotion: false\nBinding { target: Theme; "
                         "property: \"reducesMotion\"; value: !window.hasMotion }\n%1\n}\n")
              .arg(body);
    component.setData(text.toUtf8(), QUrl());
    window_.reset(qobject_cast<QQuickWindow*>(component.create()));
    if (!window_) throw std::runtime_error(component.errorString().toStdString());
    window_->show();
    window_->requestActivate();
    if (!QTest::qWaitForWindowActive(window_.get())) throw std::runtime_error("the window does not become active");
    settle();
}

void KitWindow::settle()
{
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        window_->grabWindow();
    }
}

void KitWindow::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(window_.get(), key, modifiers);
    settle();
}

QQuickItem& KitWindow::item(const QString& objectName) const
{
    auto* const found = window_->findChild<QQuickItem*>(objectName);
    if (!found) throw std::runtime_error("nothing in the window is called " + objectName.toStdString());
    return *found;
}

void KitWindow::setProperty(const char* name, const QVariant& value)
{
    window_->setProperty(name, value);
    settle();
}

}  // namespace larkspan
