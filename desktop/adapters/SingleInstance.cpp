#include "adapters/SingleInstance.h"

#include <QDBusConnectionInterface>
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

SingleInstance::SingleInstance(QDBusConnection bus, QString name, std::chrono::milliseconds patience, QObject* parent)
    : QObject(parent)
    , bus_(std::move(bus))
    , name_(std::move(name))
    , path_(objectPath(name_))
    , patience_(patience)
{
    connect(&service_, &ApplicationService::activated, this, &SingleInstance::activated);
}

SingleInstance::~SingleInstance()
{
    bus_.unregisterObject(path_);
    bus_.unregisterService(name_);
}

SingleInstance::Standing SingleInstance::claim(const QString& activationToken, Raise raise)
{
    if (!bus_.isConnected()) return Standing::first;

    // Before the name is owned, so that whoever finds the owner also finds the object.
    bus_.registerObject(path_, &service_, QDBusConnection::ExportScriptableSlots);
    for (int round = 0; round < mostRounds; ++round) {
        if (ownName(false)) {
            watchForReplacement();
            return Standing::first;
        }
        const auto first = owner();
        if (first.isEmpty()) continue;
        if (raise == Raise::no ? isThere(first) : activate(first, activationToken)) return Standing::second;
        if (first == owner() && ownName(true)) break;
    }
    watchForReplacement();
    return Standing::first;
}

bool SingleInstance::ownName(bool replacing)
{
    const auto whenTaken = replacing ? BusInterface::ReplaceExistingService : BusInterface::DontQueueService;
    const auto reply = bus_.interface()->registerService(name_, whenTaken, BusInterface::AllowReplacement);
    return reply.isValid() && reply.value() == BusInterface::ServiceRegistered;
}

QString SingleInstance::owner() const
{
    return bus_.interface()->serviceOwner(name_);
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
    const auto reply = bus_.call(call, QDBus::Block, static_cast<int>(patience_.count()));
    // This program answers without words. Whatever says something else is not one of its instances, and would leave the
    // user without a window.
    return reply.type() == QDBusMessage::ReplyMessage && reply.signature().isEmpty();
}

bool SingleInstance::isThere(const QString& owner)
{
    const auto question
        = QDBusMessage::createMethodCall(owner, path_, "org.freedesktop.DBus.Introspectable", "Introspect");
    // Every program on the bus answers a ping, but only an instance has this object.
    const QDBusReply<QString> described = bus_.call(question, QDBus::Block, static_cast<int>(patience_.count()));
    return described.isValid() && described.value().contains("\"org.freedesktop.Application\"");
}

void SingleInstance::watchForReplacement()
{
    connect(bus_.interface(), &BusInterface::serviceUnregistered, this, [this](const QString& name) {
        if (name == name_) emit replaced();
    });
}

}  // namespace larkspan::adapters
