#include "adapters/tray/DotImage.h"

#include <QBuffer>
#include <QHash>
#include <QImage>
#include <QPainter>

namespace larkspan::adapters {

namespace {

using Dot = platform::MenuRow::Dot;

constexpr int menuIconPoints = 16;
constexpr int dotPoints = 8;
// Hosts scale down an icon that is too large, but do not scale up a small one.
constexpr int pixelsPerPoint = 2;

QByteArray drawn(const QColor& color)
{
    QImage image(menuIconPoints * pixelsPerPoint, menuIconPoints * pixelsPerPoint, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.scale(pixelsPerPoint, pixelsPerPoint);
    constexpr int margin = (menuIconPoints - dotPoints) / 2;
    painter.drawEllipse(margin, margin, dotPoints, dotPoints);
    painter.end();

    QBuffer buffer;
    buffer.open(QBuffer::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

}  // namespace

QColor dotColor(Dot dot)
{
    switch (dot) {
    case Dot::none: return Qt::transparent;
    case Dot::green: return QColor(0x2a, 0x95, 0x5a);
    case Dot::orange: return QColor(0xcc, 0x72, 0x12);
    case Dot::red: return QColor(0xdf, 0x4f, 0x49);
    case Dot::blue: return QColor(0x3d, 0x80, 0xe0);
    case Dot::gray: return QColor(0x7f, 0x87, 0x92);
    }
    return Qt::transparent;
}

QByteArray dotImage(Dot dot)
{
    if (dot == Dot::none) return {};
    static QHash<Dot, QByteArray> images;
    auto& image = images[dot];
    if (image.isEmpty()) image = drawn(dotColor(dot));
    return image;
}

}  // namespace larkspan::adapters
