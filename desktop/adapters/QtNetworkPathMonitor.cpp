#include "adapters/QtNetworkPathMonitor.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QNetworkInformation>

#include <chrono>
#include <utility>

#include "adapters/WhenAnswered.h"

namespace larkspan::adapters {

namespace {

using namespace std::chrono_literals;

constexpr auto networkManager = "org.freedesktop.NetworkManager";
constexpr std::chrono::milliseconds patience = 5s;

}  // namespace

QtNetworkPathMonitor::QtNetworkPathMonitor()
    : bus_(QDBusConnection::systemBus())
{
}

void QtNetworkPathMonitor::start(std::function<void(bool isSatisfied)> update)
{
    update_ = std::move(update);
    if (!bus_.isConnected()) {
        QMetaObject::invokeMethod(this, [this] { report(true); }, Qt::QueuedConnection);
        return;
    }
    auto* const watcher
        = new QDBusServiceWatcher(networkManager, bus_, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &QtNetworkPathMonitor::askForNetworkManager);
    askForNetworkManager();
}

void QtNetworkPathMonitor::askForNetworkManager()
{
    if (std::exchange(isAsking_, true)) return;
    // Qt's backend blocks the main thread for up to half a minute until NetworkManager answers, so it is loaded only
    // when NetworkManager is known to answer.
    auto ping = QDBusMessage::createMethodCall(
        networkManager, "/org/freedesktop/NetworkManager", "org.freedesktop.DBus.Peer", "Ping");
    ping.setAutoStartService(false);
    const auto answered = bus_.asyncCall(ping, static_cast<int>(patience.count()));
    whenAnswered(this, answered, [this](const QDBusPendingCall& answer) {
        isAsking_ = false;
        if (!answer.isError()) return followReachability();
        if (!reported_) report(true);
        // A slow NetworkManager, common while a session starts, has to be waited for; a missing one is noticed when it
        // appears.
        if (answer.error().type() == QDBusError::NoReply) askForNetworkManager();
    });
}

void QtNetworkPathMonitor::followReachability()
{
    const bool isLoaded = QNetworkInformation::loadBackendByName(u"networkmanager");
    auto* const information = QNetworkInformation::instance();
    if (!isLoaded || !information) {
        report(true);
        return;
    }
    connect(information, &QNetworkInformation::reachabilityChanged, this, &QtNetworkPathMonitor::reportReachability,
        Qt::UniqueConnection);
    reportReachability();
}

void QtNetworkPathMonitor::reportReachability()
{
    using Reachability = QNetworkInformation::Reachability;
    switch (QNetworkInformation::instance()->reachability()) {
    case Reachability::Online:
    // There is a route beyond the local network, but NetworkManager's connectivity check was not answered. That happens
    // behind many proxies, firewalls and VPNs that let the service through.
    case Reachability::Site: return report(true);
    case Reachability::Local:
    case Reachability::Disconnected: return report(false);
    // NetworkManager reports this between two states and when it does not know: the last known state remains valid.
    case Reachability::Unknown: return report(reported_.value_or(true));
    }
}

void QtNetworkPathMonitor::report(bool isSatisfied)
{
    if (reported_ == isSatisfied) return;
    reported_ = isSatisfied;
    update_(isSatisfied);
}

}  // namespace larkspan::adapters
