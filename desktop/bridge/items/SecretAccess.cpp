#include "bridge/items/SecretAccess.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>

namespace larkspan::bridge {

namespace {

/// Qt lists an item under its nearest ancestor with accessible properties in QML.
bool isAccessible(const QQuickItem& item)
{
    return std::ranges::any_of(item.children(), [](const QObject* child) {
        return child->inherits("QQuickAccessibleAttached") && !child->property("ignored").toBool();
    });
}

class SecretAccess : public QAccessibleObject, public QAccessibleActionInterface {
public:
    explicit SecretAccess(QQuickItem* field)
        : QAccessibleObject(field)
    {
    }

    QAccessible::Role role() const override { return QAccessible::EditableText; }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.passwordEdit = true;
        state.editable = true;
        state.focusable = true;
        state.focused = field().hasActiveFocus();
        state.disabled = !field().isEnabled();
        state.invisible = !field().isVisible() || !window() || !window()->isVisible();
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name) return field().property("name").toString();
        if (kind == QAccessible::Description) return field().property("placeholderText").toString();
        return {};
    }

    QRect rect() const override
    {
        const auto scene = field().mapRectToScene({0, 0, field().width(), field().height()}).toRect();
        return window() ? scene.translated(window()->mapToGlobal(QPoint())) : scene;
    }

    QWindow* window() const override { return field().window(); }

    QAccessibleInterface* parent() const override
    {
        auto* quick = field().window();
        auto* above = field().parentItem();
        while (above && !isAccessible(*above)) above = above->parentItem();
        if (above) return QAccessible::queryAccessibleInterface(above);
        return quick ? QAccessible::queryAccessibleInterface(quick) : nullptr;
    }

    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override { return {setFocusAction()}; }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& action) override
    {
        if (action == setFocusAction()) field().forceActiveFocus(Qt::OtherFocusReason);
    }

private:
    QQuickItem& field() const { return static_cast<QQuickItem&>(*object()); }
};

QAccessibleInterface* accessOf(const QString&, QObject* object)
{
    // Called before any value of the object is set, so only its type can be checked.
    if (!object || object->metaObject()->indexOfProperty("hidesItsText") < 0) return nullptr;
    auto* field = qobject_cast<QQuickItem*>(object);
    return field ? new SecretAccess(field) : nullptr;
}

}  // namespace

void hideSecretsFromAccessibility()
{
    QAccessible::installFactory(accessOf);
}

}  // namespace larkspan::bridge
