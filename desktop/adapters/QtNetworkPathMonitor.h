#pragma once

#include <QObject>

#include "platform/NetworkPathMonitor.h"

namespace larkspan::adapters {

/// The network as the desktop's own service sees it. Where none can tell, the path counts as satisfied: better a
/// request that fails than a program that believes itself offline. Main thread only.
class QtNetworkPathMonitor final : public QObject, public platform::NetworkPathMonitor {
public:
    using QObject::QObject;

    /// Looks in a later turn of the event loop, so that the window doesn't wait for the network's service.
    void start(std::function<void(bool isSatisfied)> update) override;
};

}  // namespace larkspan::adapters
