#pragma once

#include <functional>

namespace larkspan::platform {

/// Reports whether the computer has a usable network.
class NetworkPathMonitor {
public:
    virtual ~NetworkPathMonitor() = default;

    /// Calls `update` with whether the path is satisfied, soon after this call and after each change, on any thread.
    virtual void start(std::function<void(bool isSatisfied)> update) = 0;
};

}  // namespace larkspan::platform
