#pragma once

#include <QRectF>
#include <QString>

#include <vector>

class QQuickItem;
class QQuickWindow;

namespace larkspan::gallery {

/// Where Tab has led to.
struct FocusStop {
    /// What has the keyboard, and the whole that it is a part of, such as a calendar of its day.
    const QQuickItem* holder = nullptr;
    const QQuickItem* whole = nullptr;
    QString name{};
    bool isHeading = false;
    /// In a menu that is up; a menu marks its current row by a colour and not by a ring.
    bool isInMenu = false;
    /// The holder's place in the window, and what of that is seen.
    QRectF place{};
    QRectF seen{};
    /// The most of it that could be seen at once.
    qreal mostHeight = 0;
    /// All rings in the window.
    std::vector<QRectF> rings{};
};

FocusStop focusIn(const QQuickWindow& window);

/// Whether a reader comes to `next` later than to `before`, both where they stand now: rows go down, lines to the
/// right, and what stands in another comes after it.
bool isReadAfter(const QQuickItem& next, const QQuickItem& before);

/// Whether the line of a ring runs through words.
bool strikesText(const QQuickWindow& window, const QRectF& ring, const QQuickItem& holder);

}  // namespace larkspan::gallery
