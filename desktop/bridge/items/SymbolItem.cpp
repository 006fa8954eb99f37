#include "bridge/items/SymbolItem.h"

#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

namespace larkspan::bridge {

namespace {

/// Parsed once and kept, since a list shows the same few symbols many times. Main thread only, as for painted items.
QSvgRenderer& renderer(const QString& name)
{
    static QHash<QString, QSvgRenderer*> renderers;
    auto& found = renderers[name];
    if (!found) {
        found = new QSvgRenderer(QStringLiteral(":/larkspan/symbols/%1.svg").arg(name), nullptr);
        found->setAspectRatioMode(Qt::KeepAspectRatio);
        if (!found->isValid()) qFatal("no symbol is called \"%s\"", qPrintable(name));
    }
    return *found;
}

}  // namespace

SymbolItem::SymbolItem(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void SymbolItem::setName(const QString& name)
{
    if (name_ == name) return;
    name_ = name;
    emit nameChanged();
    update();
}

void SymbolItem::setColor(const QColor& color)
{
    if (color_ == color) return;
    color_ = color;
    emit colorChanged();
    update();
}

void SymbolItem::paint(QPainter* painter)
{
    if (name_.isEmpty()) return;
    renderer(name_).render(painter, boundingRect());
    if (!color_.isValid()) return;
    painter->setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter->fillRect(boundingRect(), color_);
}

}  // namespace larkspan::bridge
