#include "core/InProcessNotifications.h"

#include <utility>

namespace larkspan::core {

support::Subscription InProcessNotifications::observe(std::string_view name, Observer observer)
{
    auto listener = std::make_shared<const Listener>(Listener{std::string(name), std::move(observer)});
    listeners_.push_back(listener);
    return listener;
}

void InProcessNotifications::post(std::string_view name, const std::string& object)
{
    std::erase_if(listeners_, [](const auto& listener) { return listener.expired(); });
    // A copy, since an observer may subscribe or unsubscribe.
    for (const auto& weak : std::vector(listeners_)) {
        const auto listener = weak.lock();
        if (listener && listener->name == name) listener->observer(object);
    }
}

}  // namespace larkspan::core
