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
    // Qt's backend waits for NetworkManager on the main thread, for up to half a minute: it is loaded only when
    // NetworkManager is known to answer.
    auto ping = QDBusMessage::createMethodCall(
        networkManager, "/org/freedesktop/NetworkManager", "org.freedesktop.DBus.Peer", "Ping");
    ping.setAutoStartService(false);
    const auto answered = bus_.asyncCall(ping, static_cast<int>(patience.count()));
    whenAnswered(this, answered, [this](const QDBusPendingCall& answer) {
        isAsking_ = false;
        if (!answer.isError()) return followReachability();
        if (!reported_) report(true);
        // One that is slow, as many are while a session starts, has to be waited for; one that is not there tells
        // when it comes.
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
    // There is a way out, only NetworkManager's own question to the internet was not answered: so it is behind many a
    // proxy, firewall or VPN that lets the service through.
    case Reachability::Site: return report(true);
    case Reachability::Local:
    case Reachability::Disconnected: return report(false);
    // Between two states, and where it cannot tell, NetworkManager says this: what was last known stands.
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
