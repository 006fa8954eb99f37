#pragma once

#include <QRectF>
#include <QString>

#include <vector>

class QQuickItem;
class QQuickWindow;

namespace larkspan::gallery {

/// A text on the screen.
struct ShownText {
    QString text{};
    /// Where it is painted, in the window.
    QRectF painted{};
    /// What of that is seen: a list that scrolls may show a part of it.
    QRectF seen{};
    /// What of it no scrolling can bring into sight, in words; empty as it should be.
    QString cut{};
    /// A field's own, which goes under the field's frame where it is longer.
    bool scrollsItself = false;
    /// The item that it floats in over what stands below, if it does so by design.
    const QQuickItem* floating = nullptr;
    /// The popup that it stands in, or the window itself.
    const QQuickItem* layer = nullptr;
};

/// All that is seen of texts in a window.
std::vector<ShownText> textsOf(const QQuickWindow& window);

}  // namespace larkspan::gallery
