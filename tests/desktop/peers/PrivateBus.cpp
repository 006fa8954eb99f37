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
  <listen>unix:dir=%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>)";

}  // namespace

PrivateBus::PrivateBus()
{
    QFile file(directory_.filePath("bus.conf"));
    if (!file.open(QFile::WriteOnly)) throw std::runtime_error("no place for the bus's configuration");
    file.write(QString(configuration).arg(directory_.path()).toUtf8());
    file.close();

    daemon_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    daemon_.start("dbus-daemon", {"--config-file=" + file.fileName(), "--nofork", "--nopidfile", "--print-address"});
    if (!turnUntil([this] { return daemon_.canReadLine(); })) throw std::runtime_error("dbus-daemon doesn't start");
    address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
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
