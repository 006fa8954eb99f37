#include "peers/PrivateBus.h"

#include <QDBusConnectionInterface>
#include <QFile>
#include <QUuid>

#include <stdexcept>

#include "peers/EventLoop.h"

namespace larkspan::peers {

namespace {

constexpr auto configuration = R"(<busconfig>
  <type>session</type>
  <listen>%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>)";

}  // namespace

PrivateBus::PrivateBus()
    : address_("unix:path=" + directory_.filePath("bus"))
{
    QFile file(directory_.filePath("bus.conf"));
    if (!file.open(QFile::WriteOnly)) throw std::runtime_error("no place for the bus's configuration");
    file.write(QString(configuration).arg(address_).toUtf8());
    file.close();
    daemon_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    start();
}

void PrivateBus::start()
{
    const auto settings = directory_.filePath("bus.conf");
    daemon_.start("dbus-daemon", {"--config-file=" + settings, "--nofork", "--nopidfile", "--print-address"});
    if (!turnUntil([this] { return daemon_.canReadLine(); })) throw std::runtime_error("dbus-daemon doesn't start");
}

PrivateBus::~PrivateBus()
{
    stop();
}

QDBusConnection PrivateBus::connect() const
{
    return QDBusConnection::connectToBus(address_, QUuid::createUuid().toString());
}

bool PrivateBus::awaitOwner(const QString& name) const
{
    const auto connection = connect();
    return turnUntil([&] { return connection.interface()->isServiceRegistered(name).value(); });
}

void PrivateBus::stop()
{
    daemon_.kill();
    daemon_.waitForFinished();
}

}  // namespace larkspan::peers
