#include "adapters/PackageKitTransaction.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QRegularExpression>
#include <QTimer>

#include <utility>

#include "adapters/NameOwner.h"
#include "adapters/WhenAnswered.h"

namespace larkspan::adapters {

namespace {

constexpr auto service = "org.freedesktop.PackageKit";
constexpr auto servicePath = "/org/freedesktop/PackageKit";
constexpr auto serviceInterface = "org.freedesktop.PackageKit";
constexpr auto transactionInterface = "org.freedesktop.PackageKit.Transaction";

/// The version in PackageKit's "name;version;architecture;origin"; empty for any other package, and for a text that is
/// no version in any distribution.
QString versionOfThisProgram(const QString& packageId)
{
    static const QRegularExpression pattern(R"(\Alarkspan;([A-Za-z0-9.+~:_^-]{1,100});[^;]*;[^;]*\z)");
    return pattern.match(packageId).captured(1);
}

bool meansThereIsNoService(const QDBusError& error)
{
    static const QStringList names{
        "org.freedesktop.DBus.Error.ServiceUnknown",
        "org.freedesktop.DBus.Error.NameHasNoOwner",
        "org.freedesktop.DBus.Error.Spawn.ServiceNotFound",
        // The error when an administrator has masked the service in systemd.
        "org.freedesktop.systemd1.UnitMasked",
        "org.freedesktop.systemd1.NoSuchUnit",
    };
    return names.contains(error.name());
}

}  // namespace

PackageKitTransaction::PackageKitTransaction(
    QDBusConnection systemBus, Work work, std::chrono::milliseconds deadline, QObject* parent)
    : QObject(parent)
    , bus_(std::move(systemBus))
    , work_(std::move(work))
    , deadline_(static_cast<int>(deadline.count()))
{
    QTimer::singleShot(deadline, this, &PackageKitTransaction::giveUp);
    const auto create = QDBusMessage::createMethodCall(service, servicePath, serviceInterface, "CreateTransaction");
    whenAnswered(this, bus_.asyncCall(create, deadline_), [this](const auto& answer) { onCreated(answer); });
}

PackageKitTransaction::~PackageKitTransaction()
{
    cancel();
}

void PackageKitTransaction::onPackage(uint info, const QString& packageId, const QString&)
{
    // The upper half is the urgency of the update.
    constexpr uint kind = 0xFFFF;
    constexpr uint installed = 1;
    auto& version = (info & kind) == installed ? installedVersion_ : availableVersion_;
    if (version.isEmpty()) version = versionOfThisProgram(packageId);
}

void PackageKitTransaction::onErrorCode(uint, const QString&)
{
    end(End::failed);
}

void PackageKitTransaction::onFinished(uint exit, uint)
{
    constexpr uint success = 1;
    end(exit == success ? End::succeeded : End::failed);
}

void PackageKitTransaction::onDestroy()
{
    end(End::failed);
}

void PackageKitTransaction::onCreated(const QDBusPendingCall& answer)
{
    if (hasEnded_) return;
    const QDBusPendingReply<QDBusObjectPath> path = answer;
    if (path.isError()) return end(meansThereIsNoService(path.error()) ? End::noService : End::failed);

    whenOwnerIsKnown(
        this, bus_, service, [this, path = path.value().path()](const QString& owner) { onOwnerKnown(owner, path); });
}

void PackageKitTransaction::onOwnerKnown(const QString& owner, const QString& path)
{
    if (hasEnded_) return;
    if (owner.isEmpty()) return end(End::failed);

    owner_ = owner;
    path_ = path;
    listen();
    startWork();
}

void PackageKitTransaction::listen()
{
    const auto on = [this](const char* signal, const char* slot) {
        bus_.connect(owner_, path_, transactionInterface, signal, this, slot);
    };
    on("Package", SLOT(onPackage(uint, QString, QString)));
    on("ErrorCode", SLOT(onErrorCode(uint, QString)));
    on("Finished", SLOT(onFinished(uint, uint)));
    on("Destroy", SLOT(onDestroy()));

    auto* const watcher = new QDBusServiceWatcher(owner_, bus_, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] { end(End::failed); });
}

void PackageKitTransaction::startWork()
{
    // Looking for an update is no reason to ask the user for a password.
    callTransaction("SetHints", {QStringList{"interactive=false"}});
    whenAnswered(this, callTransaction(work_.method, work_.arguments), [this](const QDBusPendingCall& answer) {
        if (answer.isError()) end(End::failed);
    });
}

QDBusPendingCall PackageKitTransaction::callTransaction(const QString& method, const QVariantList& arguments)
{
    auto message = QDBusMessage::createMethodCall(owner_, path_, transactionInterface, method);
    message.setArguments(arguments);
    return bus_.asyncCall(message, deadline_);
}

void PackageKitTransaction::giveUp()
{
    cancel();
    end(End::failed);
}

void PackageKitTransaction::cancel()
{
    if (!hasEnded_ && !path_.isEmpty()) callTransaction("Cancel", {});
}

void PackageKitTransaction::end(End end)
{
    if (!std::exchange(hasEnded_, true)) emit ended(end);
}

}  // namespace larkspan::adapters
