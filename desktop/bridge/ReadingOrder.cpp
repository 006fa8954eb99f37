#include "bridge/ReadingOrder.h"

#include <algorithm>
#include <utility>

namespace larkspan::bridge {

void ReadingOrder::follow(QQuickItem* container) const
{
    auto sorted = container->childItems();
    std::ranges::stable_sort(sorted, {}, &QQuickItem::y);
    for (qsizetype at = 1; at < sorted.size(); ++at) {
        const auto* previous = std::as_const(sorted)[at - 1];
        auto* item = std::as_const(sorted)[at];
        const auto siblings = container->childItems();
        if (siblings.indexOf(item) < siblings.indexOf(previous)) item->stackAfter(previous);
    }
}

}  // namespace larkspan::bridge
