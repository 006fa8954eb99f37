#include "adapters/FreedesktopNotificationCenter.h"

#include <gtest/gtest.h>

#include "notifications/NotificationServer.h"
#include "peers/EventLoop.h"
#include "peers/PrivateBus.h"

namespace larkspan::adapters {
namespace {

using peers::NotificationServer;

platform::NotificationRequest incident(const std::string& id, const std::string& title = "New Incident")
{
    return {"incident-" + id, title, "Search <slow>", "Queries take 5 s & more.", "incident", id};
}

class FreedesktopNotificationCenterTest : public testing::Test {
protected:
    peers::PrivateBus bus;
    const SessionBus session{bus.address()};
};

TEST_F(FreedesktopNotificationCenterTest, HandsTheServerTheWholeNotice)
{
    NotificationServer server(bus, {"body"});
    FreedesktopNotificationCenter center(session);

    center.add(incident("7"));

    const QJsonObject hints{{"desktop-entry", "com.kestrune.larkspan"}, {"sound-name", "message-new-instant"},
        {"urgency", 1}, {"x-kestrune-type", "incident"}, {"x-kestrune-id", "7"}};
    const QJsonObject expected{{"app_name", "Kestrune"}, {"replaces_id", 0}, {"icon", "com.kestrune.larkspan"},
        {"summary", "New Incident"}, {"body", "Search <slow>\nQueries take 5 s & more."}, {"actions", QJsonArray()},
        {"hints", hints}, {"expiry", -1}};
    EXPECT_EQ(server.notice(), expected);
}

TEST_F(FreedesktopNotificationCenterTest, EscapesTheBodyForAServerThatInterpretsMarkup)
{
    NotificationServer server(bus, {"body", "body-markup"});
    FreedesktopNotificationCenter center(session);

    center.add(incident("7", "A < B"));

    const auto notice = server.notice();
    EXPECT_EQ(notice["body"].toString(), "<b>Search &lt;slow&gt;</b>\nQueries take 5 s &amp; more.");
    EXPECT_EQ(notice["summary"].toString(), "A < B");
}

TEST_F(FreedesktopNotificationCenterTest, AsksForTheCapabilitiesOnceAndKeepsTheOrder)
{
    NotificationServer server(bus, {"body"});
    FreedesktopNotificationCenter center(session);

    center.add(incident("1", "first"));
    center.add(incident("2", "second"));
    peers::turnFor(std::chrono::milliseconds(100));
    center.add(incident("3", "third"));

    EXPECT_EQ(server.soFar(), QStringList({"asked", "first", "second", "third"}));
}

TEST_F(FreedesktopNotificationCenterTest, ALaterNoticeTakesThePlaceOfTheOneWithItsIdentifier)
{
    NotificationServer server(bus);
    FreedesktopNotificationCenter center(session);
    center.add(incident("1"));
    center.add(incident("2"));
    server.notice();
    server.notice();
    peers::turnFor(std::chrono::milliseconds(50));

    center.add(incident("2"));

    EXPECT_EQ(server.notice()["replaces_id"].toInt(), 2);
}

TEST_F(FreedesktopNotificationCenterTest, NoticesOfOneIdentifierInQuickSuccessionReplaceEachOther)
{
    NotificationServer server(bus, {"-gated"});
    FreedesktopNotificationCenter center(session);
    center.add(incident("1", "shown"));
    server.notice();
    center.add(incident("1", "outdated"));
    center.add(incident("1", "newest"));
    ASSERT_EQ(server.soFar(), QStringList());

    server.open();

    const auto notice = server.notice();
    EXPECT_EQ(notice["replaces_id"].toInt(), 1);
    EXPECT_EQ(notice["summary"].toString(), "newest");
    EXPECT_EQ(server.soFar(), QStringList());
}

TEST_F(FreedesktopNotificationCenterTest, AClosedNoticeIsNotReplaced)
{
    NotificationServer server(bus);
    FreedesktopNotificationCenter center(session);
    center.add(incident("1"));
    server.notice();
    peers::turnFor(std::chrono::milliseconds(50));

    server.close(1);
    peers::turnFor(std::chrono::milliseconds(50));
    center.add(incident("1"));

    EXPECT_EQ(server.notice()["replaces_id"].toInt(-1), 0);
}

TEST_F(FreedesktopNotificationCenterTest, RemembersOnlyTheNewestNoticesHoweverManyThereWere)
{
    NotificationServer server(bus);
    FreedesktopNotificationCenter center(session);
    for (int i = 1; i <= 600; ++i) {
        center.add(incident(std::to_string(i)));
        ASSERT_FALSE(server.notice().isEmpty());
    }
    peers::turnFor(std::chrono::milliseconds(50));

    center.add(incident("1"));
    center.add(incident("600"));

    EXPECT_EQ(server.notice()["replaces_id"].toInt(-1), 0);
    EXPECT_EQ(server.notice()["replaces_id"].toInt(-1), 600);
}

TEST_F(FreedesktopNotificationCenterTest, ARestartedServerIsAskedAnewAndNothingOfItsPredecessorsIsReplaced)
{
    FreedesktopNotificationCenter center(session);
    {
        NotificationServer server(bus, {"body-markup"});
        center.add(incident("1"));
        server.notice();
        peers::turnFor(std::chrono::milliseconds(50));
    }

    NotificationServer server(bus, {"body"});
    peers::turnFor(std::chrono::milliseconds(50));
    center.add(incident("1"));

    const auto notice = server.notice();
    EXPECT_EQ(notice["replaces_id"].toInt(-1), 0);
    EXPECT_EQ(notice["body"].toString(), "Search <slow>\nQueries take 5 s & more.");
}

TEST_F(FreedesktopNotificationCenterTest, TheServerOfANewBusIsAskedAnewAndNothingOfItsPredecessorsIsReplaced)
{
    FreedesktopNotificationCenter center(session);
    {
        NotificationServer server(bus, {"body-markup"});
        center.add(incident("1"));
        server.notice();
        bus.stop();
    }

    bus.start();
    NotificationServer server(bus, {"body"});
    ASSERT_TRUE(peers::turnUntil([&] { return session.connection().isConnected(); }));
    center.add(incident("1"));

    const auto notice = server.notice();
    EXPECT_EQ(notice["replaces_id"].toInt(-1), 0);
    EXPECT_EQ(notice["body"].toString(), "Search <slow>\nQueries take 5 s & more.");
}

}  // namespace
}  // namespace larkspan::adapters
