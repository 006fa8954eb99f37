#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace larkspan::support {

/// A callback that does `action` to `object`, or nothing once that has gone. Whoever holds it does not hold the object.
template <typename Object, typename Action>
auto whileAlive(std::weak_ptr<Object> object, Action action)
{
    return [object = std::move(object), action = std::move(action)](const auto&... arguments) {
        if (const auto alive = object.lock()) std::invoke(action, *alive, arguments...);
    };
}

}  // namespace larkspan::support
