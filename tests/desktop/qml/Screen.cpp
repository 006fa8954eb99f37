#include "Screen.h"

#include <QTest>

#include <gtest/gtest.h>

#include <stdexcept>

namespace larkspan {

namespace {

void collect(QAccessibleInterface* interface, std::vector<Screen::Thing>& things)
{
    if (!interface || interface->state().invisible) return;
    things.push_back({interface->role(), interface->text(QAccessible::Name), interface->text(QAccessible::Description),
        interface->object()});
    for (int child = 0; child < interface->childCount(); ++child) collect(interface->child(child), things);
}

/// The text that the key types.
QString textOf(Qt::Key key)
{
    if (key == Qt::Key_Return || key == Qt::Key_Enter) return QStringLiteral("\r");
    if (key >= Qt::Key_Space && key <= Qt::Key_AsciiTilde) return QString(QChar(key)).toLower();
    return {};
}

void visitBelow(QQuickItem& item, const std::function<void(QQuickItem&)>& look)
{
    look(item);
    for (auto* child : item.childItems()) visitBelow(*child, look);
}

}  // namespace

Screen::Screen()
{
    mainWindow.appearance().setProperty("reducesMotion", true);
    window().show();
    window().requestActivate();
    if (!QTest::qWaitForWindowActive(&window())) throw std::runtime_error("the window does not become active");
    settle();
}

void Screen::settle()
{
    for (int turn = 0; turn < 3; ++turn) {
        run();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        window().grabWindow();
    }
}

std::vector<Screen::Thing> Screen::things() const
{
    std::vector<Thing> found;
    collect(QAccessible::queryAccessibleInterface(&mainWindow.window()), found);
    return found;
}

QStringList Screen::names(QAccessible::Role role) const
{
    QStringList found;
    for (const auto& thing : things()) {
        if (thing.role == role) found << thing.name;
    }
    return found;
}

bool Screen::shows(const QString& text) const
{
    const auto all = things();
    return std::ranges::any_of(all, [&text](const Thing& thing) { return thing.name == text; });
}

QQuickItem& Screen::item(QAccessible::Role role, const QString& name) const
{
    for (const auto& thing : things()) {
        if (thing.role == role && thing.name == name) return *qobject_cast<QQuickItem*>(thing.object);
    }
    throw std::runtime_error("nothing on screen has that role and the name " + name.toStdString());
}

void Screen::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&window(), key, modifiers);
    settle();
}

void Screen::hold(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyPress(&window(), key, modifiers);
    settle();
    for (int count = 0; count < 5; ++count) repeat(key, modifiers);
    QTest::keyRelease(&window(), key, modifiers);
    settle();
}

void Screen::repeat(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    const auto text = modifiers == Qt::NoModifier ? textOf(key) : QString();
    for (const bool isPressed : {false, true}) QTest::simulateEvent(&window(), isPressed, key, modifiers, text, true);
    settle();
}

void Screen::visit(const std::function<void(QQuickItem&)>& look) const
{
    visitBelow(*mainWindow.window().contentItem(), look);
}

}  // namespace larkspan
