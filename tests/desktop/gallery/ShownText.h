#pragma once

#include <QRectF>
#include <QString>

#include <string>
#include <vector>

class QQuickItem;
class QQuickWindow;

namespace larkspan::gallery {

struct ShownText {
    QString text{};
    /// The place where it is painted, in the window.
    QRectF painted{};
    /// The visible part of that: a scrolling list may show a part only.
    QRectF seen{};
    /// A description of the part that no scrolling makes visible; empty if there is none.
    QString cut{};
    /// Whether a box stands in place of one of its characters, since no font has it.
    bool hasBox = false;
    /// Whether it is the text of a field, which may continue beyond the field's frame.
    bool scrollsItself = false;
    /// The item in which it floats over others by design, if any.
    const QQuickItem* floating = nullptr;
    /// The popup that contains it, or the window itself.
    const QQuickItem* layer = nullptr;
};

/// All texts that are visible in a window.
std::vector<ShownText> textsOf(const QQuickWindow& window);

using TextFindings = std::vector<std::string>;

/// What is wrong with the texts of a window: overlapping, cut, or with a character that no font has.
TextFindings findingsIn(const QQuickWindow& window);

}  // namespace larkspan::gallery
