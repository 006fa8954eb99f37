#pragma once

#include <QColor>
#include <QFont>
#include <QQuickItem>
#include <QRectF>

#include <string>
#include <vector>

#include "Screen.h"

namespace larkspan {

/// The place and size of an item, in points of the window.
QRectF frameOf(const QQuickItem& item);
double gapBeside(const QQuickItem& left, const QQuickItem& right);
double gapBelow(const QQuickItem& upper, const QQuickItem& lower);

/// The part of the item that is painted in another colour than its upper left corner.
QRectF inkOf(const QQuickItem& item);

QFont fontOf(const QQuickItem& text);
/// The size of the text's font, relative to the desktop's.
double sizeOf(const QQuickItem& text);
QColor colorOf(const QQuickItem& item);

/// The visible items below `root` that have this property with this value, such as a symbol's `name`, in order of
/// painting.
std::vector<QQuickItem*> partsOf(const QQuickItem& root, const char* property, const QVariant& value);
/// The first of those; never null, since the test fails if there is none.
QQuickItem* partOf(const QQuickItem& root, const char* property, const QVariant& value);

/// The tinted shape around the word of a pill or a badge.
const QQuickItem& shapeAround(const QQuickItem& word);

/// The share of the word's colour in the ground of its pill, which is a card's for the rest.
double tintOf(const QQuickItem& word);

/// The size of a pill beyond that of its word, and the strength of its tint.
struct PillMeasures {
    double beside;
    double aboveAndBelow;
    double size;
    int weight;
    double tint;

    static PillMeasures of(const QQuickItem& word);

    bool operator==(const PillMeasures&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const PillMeasures& pill);
};

/// The sizes of the type scale.
namespace type {

inline constexpr double title = 1.8;
inline constexpr double title2 = 1.45;
inline constexpr double title3 = 1.2;
inline constexpr double body = 1;
inline constexpr double subheadline = 0.93;
inline constexpr double caption = 0.86;
inline constexpr double caption2 = 0.79;

}  // namespace type

/// The colours of the light theme.
namespace light {

inline const QColor card{"#ffffff"};
inline const QColor primary{"#1d2127"};
inline const QColor secondary{"#5a6068"};
inline const QColor green{"#17703b"};
inline const QColor orange{"#964a00"};
inline const QColor yellow{"#705700"};
inline const QColor red{"#b32823"};
inline const QColor blue{"#1a5bbd"};
inline const QColor gray{"#5a6068"};

}  // namespace light

}  // namespace larkspan
