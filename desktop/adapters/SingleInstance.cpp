#include "adapters/SingleInstance.h"

#include <QDBusMessage>
#include <QDBusReply>

#include <utility>

#include "adapters/BusName.h"

namespace larkspan::adapters {

namespace {

using BusInterface = QDBusConnectionInterface;

// If owners keep appearing and disappearing, the user is not kept waiting for longer than this.
constexpr int mostRounds = 3;

}  // namespace

SingleInstance::SingleInstance(const SessionBus& bus, QString name, std::chrono::milliseconds patience, QObject* parent)
    : QObject(parent)
    , bus_(bus)
    , name_(std::move(name))
    , path_(objectPath(name_))
    , patience_(patience)
{
    connect(&service_, &ApplicationService::activated, this, &SingleInstance::activated);
}

SingleInstance::~SingleInstance()
{
    auto bus = bus_.connection();
    bus.unregisterObject(path_);
    bus.unregisterService(name_);
}

SingleInstance::Standing SingleInstance::claim(const QString& activationToken, Raise raise)
{
    auto bus = bus_.connection();
    if (!bus.isConnected()) return Standing::first;

    // Before the name is owned, so that whoever finds the owner also finds the object.
    bus.registerObject(path_, &service_, QDBusConnection::ExportScriptableSlots);
    for (int round = 0; round < mostRounds; ++round) {
        if (ownName(BusInterface::DontQueueService)) return first();
        const auto other = owner();
        if (other.isEmpty()) continue;
        if (raise == Raise::no ? isThere(other) : activate(other, activationToken)) return Standing::second;
        if (other == owner() && ownName(BusInterface::ReplaceExistingService)) break;
    }
    return first();
}

SingleInstance::Standing SingleInstance::first()
{
    watchForReplacement();
    connect(&bus_, &SessionBus::changed, this, &SingleInstance::takeNameAgain);
    return Standing::first;
}

void SingleInstance::takeNameAgain()
{
    auto bus = bus_.connection();
    if (!bus.isConnected()) return;
    bus.registerObject(path_, &service_, QDBusConnection::ExportScriptableSlots);
    // Both have a window then, in which the user may be writing: none of the two ends for the other.
    ownName(BusInterface::QueueService);
    watchForReplacement();
}

bool SingleInstance::ownName(WhenTaken whenTaken)
{
    const auto bus = bus_.connection();
    const auto reply = bus.interface()->registerService(name_, whenTaken, BusInterface::AllowReplacement);
    return reply.isValid() && reply.value() == BusInterface::ServiceRegistered;
}

QString SingleInstance::owner() const
{
    return bus_.connection().interface()->serviceOwner(name_);
}

bool SingleInstance::activate(const QString& owner, const QString& activationToken)
{
    QVariantMap platformData;
    if (!activationToken.isEmpty()) {
        platformData.insert(ApplicationService::activationTokenKey, activationToken);
        platformData.insert(ApplicationService::startupIdKey, activationToken);
    }
    // The owner's unique name: a call to the well-known one could start a program.
    auto call = QDBusMessage::createMethodCall(owner, path_, "org.freedesktop.Application", "Activate");
    call << platformData;
    const auto reply = bus_.connection().call(call, QDBus::Block, static_cast<int>(patience_.count()));
    // This program answers without words. Whatever says something else is not one of its instances, and would leave the
    // user without a window.
    return reply.type() == QDBusMessage::ReplyMessage && reply.signature().isEmpty();
}

bool SingleInstance::isThere(const QString& owner)
{
    const auto question
        = QDBusMessage::createMethodCall(owner, path_, "org.freedesktop.DBus.Introspectable", "Introspect");
    // Every program on the bus answers a ping, but only an instance has this object.
    const QDBusReply<QString> described
        = bus_.connection().call(question, QDBus::Block, static_cast<int>(patience_.count()));
    return described.isValid() && described.value().contains("\"org.freedesktop.Application\"");
}

void SingleInstance::watchForReplacement()
{
    connect(bus_.connection().interface(), &BusInterface::serviceUnregistered, this, [this](const QString& name) {
        if (name == name_) emit replaced();
    });
}

}  // namespace larkspan::adapters
