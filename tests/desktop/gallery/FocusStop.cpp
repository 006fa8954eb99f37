#include "FocusStop.h"

#include <QAccessible>
#include <QColor>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <array>
#include <utility>

#include "ShownText.h"

namespace larkspan::gallery {

namespace {

constexpr qreal ringWidth = 2;
constexpr qreal slack = 2;

QRectF placeOf(const QQuickItem& item)
{
    return item.mapRectToScene({0, 0, item.width(), item.height()});
}

bool isRing(const QQuickItem& item)
{
    const auto* const border = item.property("border").value<QObject*>();
    return border && border->property("width").toReal() == ringWidth
        && border->property("color").value<QColor>().alpha() > 0;
}

void collectRings(const QQuickItem& item, std::vector<QRectF>& rings)
{
    if (!item.isVisible() || item.opacity() == 0) return;
    if (isRing(item)) rings.push_back(placeOf(item));
    for (const auto* const child : item.childItems()) collectRings(*child, rings);
}

/// The two parts, of the smallest item that contains both, that are each read as a whole: a calendar before the clock
/// beside it.
std::pair<QRectF, QRectF> blocksOf(const QQuickItem& one, const QQuickItem& other)
{
    const auto blockIn = [](const QQuickItem& item, const QQuickItem& opposite) {
        const auto* block = &item;
        while (block->parentItem() && !block->parentItem()->isAncestorOf(&opposite)) block = block->parentItem();
        const bool hasPlace = block->width() > 0 && block->height() > 0;
        return placeOf(hasPlace ? *block : item);
    };
    return {blockIn(one, other), blockIn(other, one)};
}

}  // namespace

FocusStop focusIn(const QQuickWindow& window)
{
    FocusStop stop;
    collectRings(*window.contentItem(), stop.rings);
    auto* const holder = window.activeFocusItem();
    if (!holder) return stop;
    stop.holder = holder;
    stop.whole = holder;
    stop.place = placeOf(*holder);
    stop.seen = stop.place;
    stop.mostHeight = window.height();
    for (const auto* each = holder; each; each = each->parentItem()) {
        if (!stop.whole->activeFocusOnTab() && each->activeFocusOnTab()) stop.whole = each;
        if (!each->clip() && each->parentItem()) continue;
        stop.seen &= placeOf(*each);
        stop.mostHeight = std::min(stop.mostHeight, each->height());
    }
    if (auto* const access = QAccessible::queryAccessibleInterface(holder)) {
        stop.name = access->text(QAccessible::Name);
        stop.isHeading = access->role() == QAccessible::Heading;
        stop.isInMenu = access->role() == QAccessible::PopupMenu || access->role() == QAccessible::MenuItem;
    }
    for (const auto* each = holder; each; each = each->parentItem()) {
        stop.isInMenu = stop.isInMenu || (each->parent() && each->parent()->inherits("QQuickMenu"));
    }
    return stop;
}

bool isReadAfter(const QQuickItem& next, const QQuickItem& before)
{
    const auto [place, past] = blocksOf(next, before);
    if (before.isAncestorOf(&next)) return true;
    if (next.isAncestorOf(&before)) return false;
    if (place.top() >= past.bottom() - slack) return true;
    if (past.top() >= place.bottom() - slack) return false;
    return place.left() >= past.left();
}

QString struckText(const QQuickWindow& window, const QRectF& ring, const QQuickItem& holder)
{
    const std::array lines{QRectF(ring.left(), ring.top(), ring.width(), ringWidth),
        QRectF(ring.left(), ring.bottom() - ringWidth, ring.width(), ringWidth),
        QRectF(ring.left(), ring.top(), ringWidth, ring.height()),
        QRectF(ring.right() - ringWidth, ring.top(), ringWidth, ring.height())};
    const QQuickItem* layer = window.contentItem();
    bool isFloating = false;
    QRectF room(0, 0, window.width(), window.height());
    for (const auto* each = &holder; each->parentItem(); each = each->parentItem()) {
        if (each->parentItem()->clip()) room &= placeOf(*each->parentItem());
        isFloating = isFloating || each->property("floats").toBool();
        if (each->parentItem()->inherits("QQuickOverlay")) layer = each;
    }
    // The top and the bottom of a line of text are free of ink.
    const auto words = [layer, isFloating](const ShownText& text) {
        if (text.layer != layer || text.scrollsItself || isFloating != (text.floating != nullptr)) return QRectF();
        return text.seen.height() <= 6 ? QRectF() : text.seen.adjusted(0, 3, 0, -3);
    };
    for (const auto& text : textsOf(window)) {
        const auto place = words(text);
        if (std::ranges::any_of(lines, [&](const QRectF& line) { return (line & room).intersects(place); }))
            return text.text;
    }
    return {};
}

}  // namespace larkspan::gallery
