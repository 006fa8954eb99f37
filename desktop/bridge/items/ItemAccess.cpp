#include "bridge/items/ItemAccess.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScopedValueRollback>

#include <algorithm>
#include <map>
#include <ranges>

namespace larkspan::bridge {

namespace {

/// The item whose children are the window's popups; null if there is none.
const QQuickItem* overlayOf(const QQuickWindow& window)
{
    const auto layers = window.contentItem()->childItems();
    const auto overlay = std::ranges::find_if(layers, [](const auto* item) { return item->inherits("QQuickOverlay"); });
    return overlay != layers.end() && (*overlay)->isVisible() ? *overlay : nullptr;
}

bool isModal(const QQuickItem& layer)
{
    // The popup is the parent object of the item that it shows.
    return layer.isVisible() && layer.parent() && layer.parent()->property("modal").toBool();
}

/// Whether a modal popup is open that neither contains the item nor is beneath it.
bool isCovered(const QQuickItem& item)
{
    const auto* const overlay = item.window() ? overlayOf(*item.window()) : nullptr;
    if (!overlay) return false;
    // Of two with the same z the later one is in front.
    std::multimap<qreal, const QQuickItem*> byHeight;
    for (const auto* const layer : overlay->childItems()) byHeight.emplace(layer->z(), layer);
    for (const auto& [height, layer] : byHeight | std::views::reverse) {
        if (layer == &item || layer->isAncestorOf(&item)) return false;
        if (isModal(*layer)) return true;
    }
    return false;
}

/// Qt's accessible interface of an item, completed.
class ItemAccess final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    /// `plain` is Qt's own interface. Qt owns both and deletes them together with the item.
    ItemAccess(QQuickItem& item, QAccessibleInterface& plain)
        : item_(item)
        , plain_(plain)
        , isToldByQt_(plain.state().disabled)
        , news_(QObject::connect(&item, &QQuickItem::enabledChanged, &item, [this] { tellWhetherEnabled(); }))
    {
    }
    ItemAccess(const ItemAccess&) = delete;
    ItemAccess& operator=(const ItemAccess&) = delete;
    ~ItemAccess() override { QObject::disconnect(news_); }

    QAccessible::State state() const override
    {
        auto state = plain_.state();
        if (!item_.isEnabled()) state.disabled = true;
        if (isCovered(item_)) state.offscreen = true;
        return state;
    }

    bool isValid() const override { return plain_.isValid(); }
    QObject* object() const override { return &item_; }
    QWindow* window() const override { return plain_.window(); }
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(QAccessible::Relation match) const override
    {
        return plain_.relations(match);
    }
    QAccessibleInterface* focusChild() const override { return plain_.focusChild(); }
    QAccessibleInterface* childAt(int x, int y) const override { return plain_.childAt(x, y); }
    QAccessibleInterface* parent() const override { return plain_.parent(); }
    QAccessibleInterface* child(int index) const override { return plain_.child(index); }
    int childCount() const override { return plain_.childCount(); }
    int indexOfChild(const QAccessibleInterface* child) const override { return plain_.indexOfChild(child); }
    QString text(QAccessible::Text kind) const override { return plain_.text(kind); }
    void setText(QAccessible::Text kind, const QString& text) override { plain_.setText(kind, text); }
    QRect rect() const override { return plain_.rect(); }
    QAccessible::Role role() const override { return plain_.role(); }
    QColor foregroundColor() const override { return plain_.foregroundColor(); }
    QColor backgroundColor() const override { return plain_.backgroundColor(); }
    void virtual_hook(int id, void* data) override { plain_.virtual_hook(id, data); }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        auto* const plain = plain_.interface_cast(type);
        return plain && type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : plain;
    }

    QStringList actionNames() const override { return plain_.actionInterface()->actionNames(); }
    QString localizedActionName(const QString& action) const override
    {
        return plain_.actionInterface()->localizedActionName(action);
    }
    QString localizedActionDescription(const QString& action) const override
    {
        return plain_.actionInterface()->localizedActionDescription(action);
    }
    QStringList keyBindingsForAction(const QString& action) const override
    {
        return plain_.actionInterface()->keyBindingsForAction(action);
    }
    void doAction(const QString& action) override
    {
        if (isInReach()) plain_.actionInterface()->doAction(action);
    }

private:
    /// An assistive technology cannot reach what neither pointer nor keyboard reaches.
    bool isInReach() const { return item_.isEnabled() && !isCovered(item_); }

    void tellWhetherEnabled()
    {
        // Qt 6.8 reports this itself.
        if (!item_.isEnabled()) isToldByQt_ = plain_.state().disabled;
        // An item that is being destroyed leaves its window first.
        if (isToldByQt_ || !item_.window()) return;
        // An object of several QML files changes its class while it is created, and has an interface for each class.
        if (QAccessible::queryAccessibleInterface(&item_) != this) return;
        QAccessible::State changed;
        changed.disabled = true;
        QAccessibleStateChangeEvent event(&item_, changed);
        QAccessible::updateAccessibility(&event);
    }

    QQuickItem& item_;
    QAccessibleInterface& plain_;
    bool isToldByQt_;
    QMetaObject::Connection news_;
};

/// The object for which Qt's own interface is requested.
const QObject* declined = nullptr;

QAccessibleInterface* accessOf(const QString& className, QObject* object)
{
    // Called for each class of the object, from its own down to `QObject`.
    if (!object || object == declined || className != QLatin1String(object->metaObject()->className())) return nullptr;
    auto* const item = qobject_cast<QQuickItem*>(object);
    if (!item) return nullptr;
    const QScopedValueRollback<const QObject*> declining(declined, object);
    auto* const plain = QAccessible::queryAccessibleInterface(object);
    return plain ? new ItemAccess(*item, *plain) : nullptr;
}

}  // namespace

void reportUnreachableItems()
{
    QAccessible::installFactory(accessOf);
}

}  // namespace larkspan::bridge
