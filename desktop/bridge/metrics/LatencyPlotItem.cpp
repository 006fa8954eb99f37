#include "bridge/metrics/LatencyPlotItem.h"

#include <QPainter>

#include <optional>

#include "bridge/metrics/LatencyPicture.h"
#include "monitors/LatencyPlace.h"
#include "monitors/LatencySelection.h"

namespace larkspan::bridge {

namespace {

std::optional<monitors::LatencyMove> moveOf(int key)
{
    using Move = monitors::LatencyMove;
    switch (key) {
    case Qt::Key_Left: return Move::previous;
    case Qt::Key_Right: return Move::next;
    case Qt::Key_PageDown: return Move::pageBack;
    case Qt::Key_PageUp: return Move::pageForward;
    case Qt::Key_Home: return Move::first;
    case Qt::Key_End: return Move::last;
    default: return std::nullopt;
    }
}

}  // namespace

LatencyPlotItem::LatencyPlotItem(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    for (const auto drawn : {&LatencyPlotItem::lookChanged, &LatencyPlotItem::curveChanged}) {
        connect(this, drawn, this, [this] { update(); });
        connect(this, drawn, this, &LatencyPlotItem::selectedXChanged);
    }
    connect(this, &LatencyPlotItem::selectedIndexChanged, this, &LatencyPlotItem::selectedXChanged);
    connect(this, &QQuickItem::widthChanged, this, &LatencyPlotItem::selectedXChanged);
}

double LatencyPlotItem::selectedX() const
{
    return inset_ + monitors::latencyX(selectedIndex_, count(), plotWidth());
}

void LatencyPlotItem::point(double x)
{
    if (const auto position = monitors::latencyPosition(x - inset_, count(), plotWidth())) emit selected(*position);
}

bool LatencyPlotItem::move(int key)
{
    const auto move = moveOf(key);
    if (!move) return false;
    const auto held = selectedIndex_ < 0 ? std::nullopt : std::optional(selectedIndex_);
    if (const auto index = monitors::movedIndex(count(), held, *move)) emit selected(*index);
    return true;
}

double LatencyPlotItem::calloutLeft(double selectedX, double calloutWidth) const
{
    return monitors::calloutLeft(selectedX, calloutWidth, width());
}

void LatencyPlotItem::paint(QPainter* painter)
{
    if (!curve_.curve) return;
    const double scale = painter->worldTransform().m11();
    const QSize pixels = (size() * scale).toSize();
    auto picture = latencyPicture(
        *curve_.curve, pixels, {lineColor_, areaColor_, lineWidth_ * scale, inset_ * scale, cornerRadius_ * scale});
    picture.setDevicePixelRatio(scale);
    painter->drawImage(QPointF(), picture);
}

}  // namespace larkspan::bridge
