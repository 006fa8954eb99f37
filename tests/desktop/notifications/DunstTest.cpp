#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

#include "adapters/FreedesktopNotificationCenter.h"
#include "notifications/NotificationServer.h"
#include "peers/EventLoop.h"
#include "peers/PrivateBus.h"
#include "peers/VirtualDisplay.h"

namespace larkspan::adapters {
namespace {

/// dunst, the notification server of many light desktops.
class Dunst : public testing::Test {
protected:
    QByteArray control(const QString& command)
    {
        QProcess dunstctl;
        dunstctl.setProcessEnvironment(peers::onBus(bus));
        dunstctl.start("dunstctl", command.split(' '));
        dunstctl.waitForFinished();
        return dunstctl.readAllStandardOutput().trimmed();
    }

    /// The notices that the user has seen, the newest first.
    QJsonArray history()
    {
        control("close-all");
        return QJsonDocument::fromJson(control("history"))["data"][0].toArray();
    }

    static std::string textOf(const QJsonValue& notice)
    {
        const auto field = [&](const char* name) { return notice[name]["data"].toString(); };
        return (field("appname") + ": " + field("summary") + ": " + field("body")).toStdString();
    }

    peers::VirtualDisplay display;
    peers::PrivateBus bus;
    peers::Peer dunst{"dunst", {"-config", LARKSPAN_DUNSTRC}, peers::onBus(bus)};
};

TEST_F(Dunst, ShowsTheNoticeAndTheLaterOneInItsPlace)
{
    ASSERT_TRUE(bus.awaitOwner("org.freedesktop.Notifications"));
    const SessionBus session(bus.address());
    FreedesktopNotificationCenter center(session);

    center.add({"incident-1", "New Incident", "Search", "Slow.", "incident", "1"});
    ASSERT_TRUE(peers::turnUntil([&] { return control("count displayed") == "1"; }));
    center.add({"incident-1", "New Incident", "Search & more", "Down < up.", "incident", "1"});
    peers::turnFor(std::chrono::milliseconds(100));
    center.add({"maintenance-1", "Scheduled Maintenance", "Move", "", "maintenance", "1"});
    ASSERT_TRUE(peers::turnUntil([&] { return control("count displayed") == "2"; }));

    const auto newestFirst = history();
    EXPECT_EQ(newestFirst.size(), 2);
    EXPECT_EQ(textOf(newestFirst[0]), "Kestrune: Scheduled Maintenance: <b>Move</b>");
    EXPECT_EQ(textOf(newestFirst[1]), "Kestrune: New Incident: <b>Search &amp; more</b>\nDown &lt; up.");
}

}  // namespace
}  // namespace larkspan::adapters
