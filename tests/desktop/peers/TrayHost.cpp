#include "peers/TrayHost.h"

#include <QDeadlineTimer>
#include <QJsonDocument>
#include <QProcessEnvironment>

#include "peers/EventLoop.h"

namespace larkspan::peers {

namespace {

QProcessEnvironment environment(const PrivateBus& bus)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
    return environment;
}

}  // namespace

TrayHost::TrayHost(const PrivateBus& bus, bool hasHost)
    : process_("/usr/bin/python3", {LARKSPAN_PEERS "/tray_host.py", hasHost ? "--with-host" : "--without-host"},
          environment(bus))
{
    process_.hear();
}

bool TrayHost::seesItem(std::chrono::milliseconds patience)
{
    const QDeadlineTimer deadline(patience);
    while (registrations() == 0 && !deadline.hasExpired()) turnFor(std::chrono::milliseconds(5));
    return registrations() > 0;
}

int TrayHost::registrations()
{
    return static_cast<int>(ask({"registrations"}).toArray().size());
}

QString TrayHost::itemName()
{
    return ask({"registrations"}).toArray().last().toString();
}

void TrayHost::setHasHost(bool hasHost)
{
    ask({"hosts", hasHost});
}

QJsonObject TrayHost::item()
{
    return ask({"item"}).toObject();
}

QJsonArray TrayHost::rows()
{
    const auto layout = callMenu("GetLayout", "iias", {0, -1, QJsonArray()}).toArray();
    return layout.at(1).toArray().at(2).toArray();
}

uint TrayHost::revision()
{
    return static_cast<uint>(callMenu("GetLayout", "iias", {0, 0, QJsonArray()}).toArray().at(0).toInteger());
}

QJsonArray TrayHost::takeSignals()
{
    return ask({"signals"}).toArray();
}

QStringList TrayHost::takeSignalNames()
{
    QStringList names;
    for (const auto& signal : takeSignals()) names << signal.toArray().at(0).toString();
    return names;
}

QJsonValue TrayHost::callItem(const QString& method, const QString& signature, const QJsonArray& arguments)
{
    return ask({"call", method, signature, arguments});
}

QJsonValue TrayHost::callMenu(const QString& method, const QString& signature, const QJsonArray& arguments)
{
    return ask({"menu", method, signature, arguments});
}

void TrayHost::click(int id)
{
    callMenu("Event", "isvu", {id, "clicked", "", 0});
}

QJsonValue TrayHost::ask(const QJsonArray& command)
{
    const auto answer = process_.ask(QJsonDocument(command).toJson(QJsonDocument::Compact));
    // A document cannot be a single value.
    return QJsonDocument::fromJson(("[" + answer + "]").toUtf8()).array().at(0);
}

}  // namespace larkspan::peers
