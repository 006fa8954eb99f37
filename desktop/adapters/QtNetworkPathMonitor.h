#pragma once

#include <QDBusConnection>
#include <QObject>

#include <functional>
#include <optional>

#include "platform/NetworkPathMonitor.h"

namespace larkspan::adapters {

/// The computer's network as NetworkManager sees it, through Qt's reachability: satisfied if anything leads beyond the
/// local network, and also while the state is unknown or nothing watches the network. Main thread only, where `update`
/// is called too.
class QtNetworkPathMonitor final : public QObject, public platform::NetworkPathMonitor {
public:
    QtNetworkPathMonitor();

    /// Returns at once. A NetworkManager that starts later, or is slow to answer, is noticed too.
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
