#include "bridge/items/ReadingOrder.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>
#include <vector>

namespace larkspan::bridge {

ReadingOrder::ReadingOrder(QObject* parent)
    : QObject(parent)
{
    connect(this, &ReadingOrder::lastChanged, this, &ReadingOrder::settleSoon);
}

void ReadingOrder::setContainer(QQuickItem* container)
{
    if (container_ == container) return;
    if (container_) container_->disconnect(this);
    container_ = container;
    if (container_) {
        connect(container_, &QQuickItem::childrenChanged, this, &ReadingOrder::watchRows);
        watchRows();
    }
    emit containerChanged();
}

void ReadingOrder::watchRows()
{
    const auto rows = container_->childItems();
    for (auto* const row : rows) {
        connect(row, &QQuickItem::yChanged, this, &ReadingOrder::settleSoon, Qt::UniqueConnection);
    }
    settleSoon();
}

void ReadingOrder::settleSoon()
{
    if (!std::exchange(isPending_, true)) QMetaObject::invokeMethod(this, &ReadingOrder::settle, Qt::QueuedConnection);
}

void ReadingOrder::settle()
{
    isPending_ = false;
    if (!container_) return;
    const auto held = container_->childItems();
    // Those at one height stay in the order in which they are.
    std::vector<std::tuple<bool, qreal, qsizetype>> places;
    for (qsizetype at = 0; at < held.size(); ++at) places.emplace_back(held[at] == last_, held[at]->y(), at);
    std::ranges::sort(places);
    for (std::size_t at = 1; at < places.size(); ++at) {
        const auto* const previous = held[std::get<qsizetype>(places[at - 1])];
        auto* const item = held[std::get<qsizetype>(places[at])];
        const auto siblings = container_->childItems();
        if (siblings.indexOf(item) < siblings.indexOf(previous)) item->stackAfter(previous);
    }
}

}  // namespace larkspan::bridge
