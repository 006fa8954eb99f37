#include "adapters/tray/StatusNotifierWatcher.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <utility>

namespace larkspan::adapters {

namespace {

constexpr auto service = "org.kde.StatusNotifierWatcher";
constexpr auto path = "/StatusNotifierWatcher";
constexpr auto watcherInterface = "org.kde.StatusNotifierWatcher";

QDBusMessage call(const char* interface, const char* method, const QVariantList& arguments)
{
    auto message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return message;
}

}  // namespace

StatusNotifierWatcher::StatusNotifierWatcher(QDBusConnection bus, QObject* parent)
    : QObject(parent)
    , bus_(std::move(bus))
{
    if (!bus_.isConnected()) return;
    auto* const owner = new QDBusServiceWatcher(service, bus_, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(owner, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString&, const QString&, const QString& newOwner) {
            if (newOwner.isEmpty()) {
                onUnregistered();
            } else {
                onRegistered(newOwner);
            }
        });
    for (const auto* const name : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        bus_.connect(service, path, watcherInterface, name, this, SLOT(askForHost()));
    }
    askForHost();
}

StatusNotifierWatcher::~StatusNotifierWatcher() = default;

void StatusNotifierWatcher::registerItem()
{
    hasItem_ = true;
    sendRegistration();
}

void StatusNotifierWatcher::onRegistered(const QString& owner)
{
    owner_ = owner;
    if (hasItem_ && !registration_) sendRegistration();
    askForHost();
}

void StatusNotifierWatcher::onUnregistered()
{
    answer_.reset();
    setHasHost(false);
}

void StatusNotifierWatcher::sendRegistration()
{
    if (!bus_.isConnected()) return;
    // The connection's own name, since a sandbox doesn't let programs own the customary one.
    const auto registration = call(watcherInterface, "RegisterStatusNotifierItem", {bus_.baseService()});
    registration_ = std::make_unique<QDBusPendingCallWatcher>(bus_.asyncCall(registration));
    connect(registration_.get(), &QDBusPendingCallWatcher::finished, this, [this, owner = owner_] {
        const auto answeredBy = registration_->reply().service();
        registration_.release()->deleteLater();
        // A list that came while this was under way may have it already, or may be the next one.
        if (owner_ != owner && owner_ != answeredBy) sendRegistration();
    });
}

void StatusNotifierWatcher::askForHost()
{
    const auto question
        = call("org.freedesktop.DBus.Properties", "Get", {watcherInterface, QString("IsStatusNotifierHostRegistered")});
    answer_ = std::make_unique<QDBusPendingCallWatcher>(bus_.asyncCall(question));
    connect(answer_.get(), &QDBusPendingCallWatcher::finished, this, [this] {
        const QDBusPendingReply<QDBusVariant> reply = *answer_;
        setHasHost(reply.isValid() && reply.value().variant().toBool());
    });
}

void StatusNotifierWatcher::setHasHost(bool hasHost)
{
    if (std::exchange(hasHost_, hasHost) != hasHost) emit hasHostChanged();
}

}  // namespace larkspan::adapters
