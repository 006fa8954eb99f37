#include "support/Observable.h"

namespace larkspan::support {

Subscription Observable::objectWillChange(std::function<void()> observer)
{
    auto held = std::make_shared<const std::function<void()>>(std::move(observer));
    observers_.emplace_back(held);
    return held;
}

void Observable::announceChange()
{
    std::erase_if(observers_, [](const auto& observer) { return observer.expired(); });
    // An observer may subscribe or unsubscribe others, so the list is copied first.
    const auto told = observers_;
    for (const auto& weak : told) {
        if (const auto observer = weak.lock()) (*observer)();
    }
}

}  // namespace larkspan::support
