#include "adapters/tray/StatusNotifierWatcher.h"

#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

#include "adapters/NameOwner.h"

namespace larkspan::adapters {

namespace {

constexpr auto service = "org.kde.StatusNotifierWatcher";
constexpr auto path = "/StatusNotifierWatcher";
constexpr auto watcherInterface = "org.kde.StatusNotifierWatcher";

}  // namespace

StatusNotifierWatcher::StatusNotifierWatcher(const SessionBus& bus, QObject* parent)
    : QObject(parent)
    , bus_(bus)
    , changes_(service, bus_.connection(), QDBusServiceWatcher::WatchForOwnerChange)
{
    connect(&changes_, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString&, const QString&, const QString& owner) { setOwner(owner); });
    connect(&bus_, &SessionBus::changed, this, &StatusNotifierWatcher::follow);
    follow();
}

void StatusNotifierWatcher::follow()
{
    // The unique names of another bus are the same again.
    setOwner({});
    auto bus = bus_.connection();
    if (!bus.isConnected()) return;
    changes_.setConnection(bus);
    for (const auto* const name : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        bus.connect(service, path, watcherInterface, name, this, SLOT(askForHost()));
    }
    whenOwnerIsKnown(this, bus, service, [this](const QString& owner) { setOwner(owner); });
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
    const auto bus = bus_.connection();
    bus.asyncCall(call(watcherInterface, "RegisterStatusNotifierItem", {bus.baseService()}));
}

void StatusNotifierWatcher::askForHost()
{
    if (owner_.isEmpty()) return;
    const auto question
        = call("org.freedesktop.DBus.Properties", "Get", {watcherInterface, QString("IsStatusNotifierHostRegistered")});
    answer_ = std::make_unique<QDBusPendingCallWatcher>(bus_.connection().asyncCall(question));
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
