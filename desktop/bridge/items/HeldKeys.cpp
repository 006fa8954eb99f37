#include "bridge/items/HeldKeys.h"

#include <QKeyEvent>
#include <QQuickItem>

namespace larkspan::bridge {

namespace {

/// Whether the key presses the item with the focus, or leaves it.
bool isPress(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Select:
    case Qt::Key_Escape:
    case Qt::Key_Back: return true;
    case Qt::Key_Left: return event.modifiers().testFlag(Qt::AltModifier);
    default: return false;
    }
}

}  // namespace

void HeldKeys::setWindow(QQuickWindow* window)
{
    if (window == window_) return;
    if (window_) window_->removeEventFilter(this);
    window_ = window;
    if (window_) window_->installEventFilter(this);
    emit windowChanged();
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) {
        return QObject::eventFilter(watched, event);
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    return key.isAutoRepeat() && isPress(key) && !isForText(static_cast<Qt::Key>(key.key()));
}

bool HeldKeys::isForText(Qt::Key key) const
{
    const auto* const holder = window_->activeFocusItem();
    if (!holder || !holder->flags().testFlag(QQuickItem::ItemAcceptsInputMethod)) return false;
    if (key == Qt::Key_Space) return true;
    const auto hints = holder->inputMethodQuery(Qt::ImHints).value<Qt::InputMethodHints>();
    return (key == Qt::Key_Return || key == Qt::Key_Enter) && hints.testFlag(Qt::ImhMultiLine);
}

}  // namespace larkspan::bridge
