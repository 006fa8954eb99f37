#include "adapters/StatusService.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

#include <utility>

#include "adapters/BusName.h"

namespace larkspan::adapters {

namespace {

constexpr auto interfaceName = "com.kestrune.larkspan.Status";
constexpr auto nothingKnown = "com.kestrune.larkspan.Error.NothingKnown";

QString statusPath(const QString& name)
{
    return objectPath(name) + QStringLiteral("/status");
}

}  // namespace

StatusService::StatusService(const SessionBus& bus, const QString& name, Report report)
    : bus_(bus)
    , path_(statusPath(name))
    , report_(std::move(report))
{
    connect(&bus_, &SessionBus::changed, this, &StatusService::offer);
    offer();
}

StatusService::~StatusService()
{
    bus_.connection().unregisterObject(path_);
}

void StatusService::offer()
{
    bus_.connection().registerObject(path_, this, QDBusConnection::ExportScriptableSlots);
}

int StatusService::Read(QString& text, QString& json, QString& problem)
{
    const auto report = report_();
    if (!report) {
        sendErrorReply(nothingKnown, QStringLiteral("The account has not been fetched yet."));
        return 0;
    }
    text = QString::fromStdString(report->text);
    json = QString::fromStdString(report->json);
    problem = QString::fromStdString(report->problem);
    return report->exitCode;
}

std::optional<platform::StatusReport> StatusService::ask(
    QDBusConnection bus, const QString& name, std::chrono::milliseconds patience)
{
    if (!bus.isConnected()) return std::nullopt;
    // The owner's unique name: a call to the well-known one would start a program.
    const QString owner = bus.interface()->serviceOwner(name);
    if (owner.isEmpty()) return std::nullopt;
    const auto call = QDBusMessage::createMethodCall(owner, statusPath(name), interfaceName, "Read");
    const auto reply = bus.call(call, QDBus::Block, static_cast<int>(patience.count()));
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != QLatin1String("isss")) return std::nullopt;
    const auto words = reply.arguments();
    return platform::StatusReport{
        .exitCode = words[0].toInt(),
        .text = words[1].toString().toStdString(),
        .json = words[2].toString().toStdString(),
        .problem = words[3].toString().toStdString(),
    };
}

}  // namespace larkspan::adapters
