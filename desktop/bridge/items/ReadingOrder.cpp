#include "bridge/items/ReadingOrder.h"

#include <algorithm>
#include <utility>

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
    auto sorted = container_->childItems();
    std::ranges::stable_sort(
        sorted, {}, [this](const QQuickItem* item) { return std::pair(item == last_, item->y()); });
    for (qsizetype at = 1; at < sorted.size(); ++at) {
        const auto* previous = std::as_const(sorted)[at - 1];
        auto* item = std::as_const(sorted)[at];
        const auto siblings = container_->childItems();
        if (siblings.indexOf(item) < siblings.indexOf(previous)) item->stackAfter(previous);
    }
}

}  // namespace larkspan::bridge
