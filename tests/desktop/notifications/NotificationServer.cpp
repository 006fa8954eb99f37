#include "notifications/NotificationServer.h"

#include <QJsonDocument>
#include <QProcessEnvironment>

namespace larkspan::peers {

NotificationServer::NotificationServer(const PrivateBus& bus, const QStringList& capabilitiesAndWays)
    : Peer("/usr/bin/python3", QStringList{LARKSPAN_NOTIFICATION_SERVER} + capabilitiesAndWays, onBus(bus))
{
    hear();
}

QJsonObject NotificationServer::notice()
{
    QString line = hear();
    while (line == "asked") line = hear();
    return QJsonDocument::fromJson(line.toUtf8()).object();
}

QStringList NotificationServer::soFar()
{
    QStringList said;
    for (const auto& line : heardByNow()) {
        said << (line == "asked" ? line : QJsonDocument::fromJson(line.toUtf8())["summary"].toString());
    }
    return said;
}

void NotificationServer::close(int notice)
{
    tell("close " + QByteArray::number(notice) + '\n');
    hear();
}

QProcessEnvironment onBus(const PrivateBus& bus)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
    return environment;
}

}  // namespace larkspan::peers
