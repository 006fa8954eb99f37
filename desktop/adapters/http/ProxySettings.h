#pragma once

#include <string>

#include "support/UniqueFunction.h"

namespace larkspan::adapters {

/// The proxies that the user has set in the desktop.
class ProxySettings {
public:
    virtual ~ProxySettings() = default;

    /// Calls `answer` with the proxy for `url` as scheme://host:port, empty for none; asynchronously, on any thread.
    /// May be called from any thread.
    virtual void findProxy(std::string url, support::UniqueFunction<void(std::string proxy)> answer) = 0;
};

}  // namespace larkspan::adapters
