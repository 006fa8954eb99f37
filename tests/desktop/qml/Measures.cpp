#include "Measures.h"

#include <QGuiApplication>
#include <QImage>
#include <QQuickWindow>

#include <cmath>
#include <ostream>
#include <stdexcept>

namespace larkspan {

namespace {

void collect(const QQuickItem& item, const char* property, const QVariant& value, std::vector<QQuickItem*>& found)
{
    for (auto* const child : item.childItems()) {
        if (!child->isVisible()) continue;
        if (child->property(property) == value) found.push_back(child);
        collect(*child, property, value, found);
    }
}

/// Sizes of the type scale have two decimals.
double rounded(double size)
{
    return std::round(size * 100) / 100;
}

}  // namespace

QRectF frameOf(const QQuickItem& item)
{
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

double gapBeside(const QQuickItem& left, const QQuickItem& right)
{
    return frameOf(right).left() - frameOf(left).right();
}

double gapBelow(const QQuickItem& upper, const QQuickItem& lower)
{
    return frameOf(lower).top() - frameOf(upper).bottom();
}

QRectF inkOf(const QQuickItem& item)
{
    const auto place = frameOf(item).toAlignedRect();
    const auto picture = item.window()->grabWindow().copy(place);
    const auto ground = picture.pixel(0, 0);
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != ground) ink |= QRect(x, y, 1, 1);
        }
    }
    return QRectF(ink).translated(place.topLeft());
}

QFont fontOf(const QQuickItem& text)
{
    return text.property("font").value<QFont>();
}

double sizeOf(const QQuickItem& text)
{
    return rounded(fontOf(text).pointSizeF() / QGuiApplication::font().pointSizeF());
}

QColor colorOf(const QQuickItem& item)
{
    return item.property("color").value<QColor>();
}

std::vector<QQuickItem*> partsOf(const QQuickItem& root, const char* property, const QVariant& value)
{
    std::vector<QQuickItem*> found;
    collect(root, property, value, found);
    return found;
}

QQuickItem* partOf(const QQuickItem& root, const char* property, const QVariant& value)
{
    const auto found = partsOf(root, property, value);
    if (found.empty()) {
        throw std::runtime_error("nothing there has " + std::string(property) + " " + value.toString().toStdString());
    }
    return found.front();
}

const QQuickItem& shapeAround(const QQuickItem& word)
{
    const auto* shape = word.parentItem();
    while (shape && !shape->property("radius").isValid()) shape = shape->parentItem();
    if (!shape) throw std::runtime_error("no shape is around " + word.property("text").toString().toStdString());
    return *shape;
}

double tintOf(const QQuickItem& word)
{
    const auto ground = colorOf(shapeAround(word));
    if (ground.alpha() != 255) throw std::runtime_error("the row shines through a pill");
    const auto share = [](float seen, float ink, float card) { return (card - seen) / (card - ink); };
    return rounded(share(ground.greenF(), colorOf(word).greenF(), light::card.greenF()));
}

PillMeasures PillMeasures::of(const QQuickItem& word)
{
    const auto shape = frameOf(shapeAround(word));
    const auto text = frameOf(word);
    return {.beside = shape.right() - text.right(),
        .aboveAndBelow = text.top() - shape.top(),
        .size = sizeOf(word),
        .weight = fontOf(word).weight(),
        .tint = tintOf(word)};
}

std::ostream& operator<<(std::ostream& out, const PillMeasures& pill)
{
    return out << "beside " << pill.beside << ", above and below " << pill.aboveAndBelow << ", size " << pill.size
               << ", weight " << pill.weight << ", tint " << pill.tint;
}

}  // namespace larkspan
