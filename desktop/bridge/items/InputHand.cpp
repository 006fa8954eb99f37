#include "bridge/items/InputHand.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <utility>

namespace larkspan::bridge {

namespace {

/// Modifiers are also held while the mouse is used.
bool isModifier(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta: return true;
    default: return false;
    }
}

}  // namespace

InputHand::InputHand(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool InputHand::eventFilter(QObject* receiver, QEvent* event)
{
    switch (event->type()) {
    // The keys of a shortcut cause no other event.
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        if (!isModifier(static_cast<const QKeyEvent*>(event)->key())) follow(true);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
    case QEvent::TabletPress: follow(false); break;
    default: break;
    }
    return QObject::eventFilter(receiver, event);
}

void InputHand::follow(bool isKeyboard)
{
    if (std::exchange(isKeyboard_, isKeyboard) != isKeyboard) emit isKeyboardChanged();
}

}  // namespace larkspan::bridge
