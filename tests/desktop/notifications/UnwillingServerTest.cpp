#include <gtest/gtest.h>

#include <csignal>

#include "adapters/FreedesktopNotificationCenter.h"
#include "notifications/NotificationServer.h"
#include "peers/EventLoop.h"
#include "peers/PrivateBus.h"

namespace larkspan::adapters {
namespace {

using peers::NotificationServer;
using peers::turnFor;
using namespace std::chrono_literals;

constexpr auto deadline = 200ms;

platform::NotificationRequest incident(const std::string& title, const std::string& body = "a < b")
{
    return {.identifier = "incident-" + title, .title = title, .body = body};
}

/// A notification server that does not do its job.
class UnwillingServer : public testing::Test {
protected:
    peers::PrivateBus bus;
    const SessionBus session{bus.address()};
    FreedesktopNotificationCenter center{session, deadline};
};

TEST_F(UnwillingServer, ThatDoesNotTellItsCapabilitiesIsSentNothingThatMightBeMarkup)
{
    NotificationServer server(bus, {"-mute"});

    center.add(incident("one"));
    center.add(incident("two"));

    EXPECT_EQ(server.notice()["body"].toString(), "a ‹ b");
    EXPECT_EQ(server.notice()["summary"].toString(), "two");
}

TEST_F(UnwillingServer, ThatHangsHoldsUpNobodyAndGetsWhatWaitedWhenItIsBack)
{
    NotificationServer server(bus, {"body"});
    server.signal(SIGSTOP);
    const auto begin = std::chrono::steady_clock::now();
    center.add(incident("one"));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 100ms);
    turnFor(deadline * 3);

    server.signal(SIGCONT);

    EXPECT_EQ(server.notice()["summary"].toString(), "one");
}

TEST_F(UnwillingServer, ThatNeverAnswersGetsTheLaterNoticesOfAnIdentifierToo)
{
    NotificationServer server(bus, {"-gated"});
    center.add(incident("one"));
    server.notice();

    center.add(incident("one"));

    EXPECT_EQ(server.notice()["replaces_id"].toInt(-1), 0);
}

TEST_F(UnwillingServer, ThatDiesWithNoticesOpenIsSucceededByOneThatGetsTheNext)
{
    {
        NotificationServer dying(bus, {"-gated"});
        center.add(incident("one"));
        dying.notice();
    }
    NotificationServer server(bus);
    turnFor(100ms);

    center.add(incident("one"));

    EXPECT_EQ(server.notice()["summary"].toString(), "one");
}

TEST_F(UnwillingServer, ThatIsNotThereYetGetsTheNoticesAfterItsStart)
{
    center.add(incident("nobody saw it"));
    turnFor(100ms);
    NotificationServer server(bus, {"body"});

    center.add(incident("one"));

    EXPECT_EQ(server.notice()["summary"].toString(), "one");
    EXPECT_EQ(server.soFar(), QStringList());
}

TEST_F(UnwillingServer, ThatFallsBehindGetsEachNoticeInItsTurn)
{
    NotificationServer server(bus, {"-gated"});
    for (int i = 0; i < 1000; ++i) center.add(incident("incident " + std::to_string(i)));

    server.open();

    for (int i = 0; i < 1000; ++i) ASSERT_EQ(server.notice()["summary"].toString(), "incident " + QString::number(i));
}

TEST_F(UnwillingServer, GetsTextsThatWouldBreakTheBusWhole)
{
    NotificationServer server(bus, {"body"});

    center.add({std::string("\0\xff", 2), std::string("a\0b\xed\xa0\x80", 6), "\xff", std::string(1'000'000, '\x80'),
        "\xef\xbf\xbf", std::string("\0", 1)});

    EXPECT_TRUE(server.notice()["summary"].toString().startsWith("ab"));
}

TEST(WithoutASessionBus, ANoticeIsDropped)
{
    const SessionBus none("unix:path=/no/such/bus");
    FreedesktopNotificationCenter center(none);
    center.add(incident("one"));
    turnFor(20ms);
}

TEST(ABusThatEnds, DoesNotEndTheProgram)
{
    peers::PrivateBus bus;
    const SessionBus session(bus.address());
    FreedesktopNotificationCenter center(session, deadline);
    NotificationServer server(bus, {"-gated"});
    center.add(incident("one"));
    server.notice();

    bus.stop();
    center.add(incident("two"));
    turnFor(deadline * 2);

    center.add(incident("three"));
}

}  // namespace
}  // namespace larkspan::adapters
