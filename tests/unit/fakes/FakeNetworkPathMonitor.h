#pragma once

#include <functional>
#include <utility>

#include "platform/NetworkPathMonitor.h"

namespace larkspan::fakes {

/// A network that the test connects and disconnects.
class FakeNetworkPathMonitor final : public platform::NetworkPathMonitor {
public:
    void start(std::function<void(bool isSatisfied)> handler) override { update = std::move(handler); }

    std::function<void(bool isSatisfied)> update;
};

}  // namespace larkspan::fakes
