#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace larkspan::support {

/// A callback that calls `action` with `object`, or does nothing after that is destroyed. The callback does not keep
/// the object alive.
template <typename Object, typename Action>
auto whileAlive(std::weak_ptr<Object> object, Action action)
{
    return [object = std::move(object), action = std::move(action)](const auto&... arguments) {
        if (const auto alive = object.lock()) std::invoke(action, *alive, arguments...);
    };
}

}  // namespace larkspan::support
