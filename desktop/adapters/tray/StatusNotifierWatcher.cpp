#include "adapters/tray/StatusNotifierWatcher.h"

#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <utility>

#include "adapters/NameOwner.h"

namespace larkspan::adapters {

namespace {

constexpr auto service = "org.kde.StatusNotifierWatcher";
constexpr auto path = "/StatusNotifierWatcher";
constexpr auto watcherInterface = "org.kde.StatusNotifierWatcher";

}  // namespace

StatusNotifierWatcher::StatusNotifierWatcher(QDBusConnection bus, QObject* parent)
    : QObject(parent)
    , bus_(std::move(bus))
{
    if (!bus_.isConnected()) return;
    auto* const changes = new QDBusServiceWatcher(service, bus_, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(changes, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString&, const QString&, const QString& owner) { setOwner(owner); });
    for (const auto* const name : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        bus_.connect(service, path, watcherInterface, name, this, SLOT(askForHost()));
    }
    whenOwnerIsKnown(this, bus_, service, [this](const QString& owner) { setOwner(owner); });
}

StatusNotifierWatcher::~StatusNotifierWatcher() = default;

void StatusNotifierWatcher::registerItem()
{
    hasItem_ = true;
    if (!owner_.isEmpty()) sendRegistration();
}

void StatusNotifierWatcher::setOwner(const QString& owner)
{
    if (std::exchange(owner_, owner) == owner) return;
    answer_.reset();
    if (owner_.isEmpty()) return setHasHost(false);
    if (hasItem_) sendRegistration();
    askForHost();
}

// Addressed to that process only, so that each watcher has the item once and none is started by the call.
QDBusMessage StatusNotifierWatcher::call(const char* interface, const char* method, const QVariantList& arguments) const
{
    auto message = QDBusMessage::createMethodCall(owner_, path, interface, method);
    message.setArguments(arguments);
    return message;
}

void StatusNotifierWatcher::sendRegistration()
{
    // The connection's unique name, since a sandbox does not let programs own the customary one.
    bus_.asyncCall(call(watcherInterface, "RegisterStatusNotifierItem", {bus_.baseService()}));
}

void StatusNotifierWatcher::askForHost()
{
    if (owner_.isEmpty()) return;
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
