#include "peers/Keyring.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDir>
#include <QProcessEnvironment>

#include <stdexcept>

namespace larkspan::peers {

namespace {

constexpr auto serviceName = "org.freedesktop.secrets";
constexpr auto servicePath = "/org/freedesktop/secrets";
constexpr auto serviceInterface = "org.freedesktop.Secret.Service";

using Attributes = QMap<QString, QString>;

QDBusMessage call(const PrivateBus& bus, const QString& path, const QString& interface, const QString& method,
    const QVariantList& arguments)
{
    auto message = QDBusMessage::createMethodCall(serviceName, path, interface, method);
    message.setArguments(arguments);
    return bus.connect().call(message);
}

}  // namespace

Keyring::Keyring(const PrivateBus& bus, Start start)
    : bus_(bus)
{
    qDBusRegisterMetaType<Attributes>();
    this->start(start);
}

void Keyring::lock() const
{
    const QList<QDBusObjectPath> collections{QDBusObjectPath("/org/freedesktop/secrets/collection/login")};
    call(bus_, servicePath, serviceInterface, "Lock", {QVariant::fromValue(collections)});
}

void Keyring::unlock() const
{
    Peer login("/usr/bin/python3", {LARKSPAN_PEERS "/unlock_keyring.py", password}, environment());
    if (!login.endsWell()) throw std::runtime_error("the keyring isn't unlocked");
}

void Keyring::store(const QStringList& attributes, const QByteArray& secret) const
{
    Peer tool("secret-tool", QStringList{"store", "--label=another program's"} + attributes, environment());
    tool.tell(secret);
    if (!tool.endsWell()) throw std::runtime_error("secret-tool stores nothing");
}

void Keyring::clear(const QStringList& attributes) const
{
    Peer tool("secret-tool", QStringList{"clear"} + attributes, environment());
    if (!tool.endsWell()) throw std::runtime_error("secret-tool clears nothing");
}

void Keyring::storeInALockedKeyring(const QStringList& attributes, const QString& secret) const
{
    Peer other("/usr/bin/python3",
        QStringList{LARKSPAN_PEERS "/store_in_locked_keyring.py", password, secret} + attributes, environment());
    if (!other.endsWell()) throw std::runtime_error("there is no second keyring");
}

QByteArray Keyring::lookUp(const QStringList& attributes) const
{
    QProcess tool;
    tool.setProcessEnvironment(environment());
    tool.start("secret-tool", QStringList{"lookup"} + attributes);
    tool.waitForFinished();
    return tool.readAllStandardOutput();
}

qsizetype Keyring::count(const QString& service) const
{
    return items(service).size();
}

QVariantMap Keyring::attributes(const QString& service) const
{
    const auto reply = call(bus_, items(service).value(0), "org.freedesktop.DBus.Properties", "Get",
        {"org.freedesktop.Secret.Item", "Attributes"});
    const auto found
        = qdbus_cast<Attributes>(reply.arguments().value(0).value<QDBusVariant>().variant().value<QDBusArgument>());
    QVariantMap attributes;
    for (auto each = found.begin(); each != found.end(); ++each) attributes.insert(each.key(), each.value());
    return attributes;
}

void Keyring::start(Start start)
{
    QStringList arguments{"--foreground", "--components=secrets"};
    if (start == Start::withAnUnlockedDefaultKeyring) arguments << "--unlock";
    daemon_ = std::make_unique<Peer>("gnome-keyring-daemon", arguments, environment());
    daemon_->tell(password);
    if (!bus_.awaitOwner(serviceName)) throw std::runtime_error("gnome-keyring-daemon doesn't start");
}

QProcessEnvironment Keyring::environment() const
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", bus_.address());
    environment.insert("HOME", home_.path());
    environment.insert("XDG_RUNTIME_DIR", home_.path());
    for (const auto* const name : {"XDG_DATA_HOME", "GNOME_KEYRING_CONTROL", "DISPLAY"}) environment.remove(name);
    return environment;
}

QStringList Keyring::items(const QString& service) const
{
    const auto reply = call(
        bus_, servicePath, serviceInterface, "SearchItems", {QVariant::fromValue(Attributes{{"service", service}})});
    QStringList paths;
    for (const auto& list : reply.arguments()) {
        for (const auto& path : qdbus_cast<QList<QDBusObjectPath>>(list.value<QDBusArgument>())) paths << path.path();
    }
    return paths;
}

}  // namespace larkspan::peers
