#pragma once

#include <QDBusConnection>
#include <QObject>

#include <functional>
#include <optional>

#include "platform/NetworkPathMonitor.h"

namespace larkspan::adapters {

/// The computer's network as NetworkManager sees it, through Qt's reachability: satisfied is whatever leads beyond the
/// local network. Where nobody watches the network, and while its state is unknown, nothing speaks against it. Notices
/// come on the main thread, on which the object lives.
class QtNetworkPathMonitor final : public QObject, public platform::NetworkPathMonitor {
public:
    QtNetworkPathMonitor();

    /// Returns at once. A NetworkManager that comes later, or takes long to answer, is noticed too.
    void start(std::function<void(bool isSatisfied)> update) override;

private:
    void askForNetworkManager();
    void followReachability();
    void reportReachability();
    void report(bool isSatisfied);

    QDBusConnection bus_;
    std::function<void(bool)> update_;
    std::optional<bool> reported_;
    bool isAsking_ = false;
};

}  // namespace larkspan::adapters
