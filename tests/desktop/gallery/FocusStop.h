#pragma once

#include <QRectF>
#include <QString>

#include <vector>

class QQuickItem;
class QQuickWindow;

namespace larkspan::gallery {

/// The stop that Tab has reached.
struct FocusStop {
    /// The item with the focus, and the whole of which it is a part, such as the calendar of a day.
    const QQuickItem* holder = nullptr;
    const QQuickItem* whole = nullptr;
    QString name{};
    bool isHeading = false;
    /// Whether it is in an open menu, which marks its current row by a colour and not by a ring.
    bool isInMenu = false;
    /// The holder's place in the window, and its visible part.
    QRectF place{};
    QRectF seen{};
    /// The most of its height that can be visible at once.
    qreal mostHeight = 0;
    std::vector<QRectF> rings{};
};

FocusStop focusIn(const QQuickWindow& window);

/// Whether `next` is read after `before` at their current places: rows from top to bottom, lines from left to right,
/// and an item after the one that contains it.
bool isReadAfter(const QQuickItem& next, const QQuickItem& before);

/// The text that the line of a ring crosses; empty for none.
QString struckText(const QQuickWindow& window, const QRectF& ring, const QQuickItem& holder);

}  // namespace larkspan::gallery
