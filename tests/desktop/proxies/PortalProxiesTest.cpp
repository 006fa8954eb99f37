#include "adapters/http/PortalProxies.h"

#include <QDBusContext>
#include <QObject>

#include <gtest/gtest.h>

#include <optional>
#include <thread>

#include "adapters/MainExecutor.h"
#include "peers/EventLoop.h"
#include "peers/PrivateBus.h"

namespace larkspan::adapters {

/// A desktop's portal with the test's settings.
class FakePortal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.ProxyResolver")

public:
    explicit FakePortal(const peers::PrivateBus& bus)
        : bus_(bus.connect())
    {
        bus_.registerObject("/org/freedesktop/portal/desktop", this, QDBusConnection::ExportAllSlots);
        bus_.registerService("org.freedesktop.portal.Desktop");
    }

    QStringList proxies;
    QStringList asked;
    bool isSilent = false;

public slots:
    QStringList Lookup(const QString& uri)
    {
        asked << uri;
        if (isSilent) setDelayedReply(true);
        return proxies;
    }

private:
    QDBusConnection bus_;
};

namespace {

using namespace std::chrono_literals;

class Proxies : public testing::Test {
protected:
    std::optional<std::string> find(const std::string& url = "https://service.test/path")
    {
        std::optional<std::string> found;
        // As the client does, from another thread.
        std::jthread([&] { proxies.findProxy(url, [&](std::string proxy) { found = std::move(proxy); }); }).join();
        peers::turnUntil([&] { return found.has_value(); });
        return found;
    }

    peers::PrivateBus bus;
    MainExecutor main;
    const SessionBus session{bus.address()};
    PortalProxies proxies{session, main};
};

TEST_F(Proxies, AreThePortalsForTheUrl)
{
    FakePortal portal(bus);
    portal.proxies = {"http://proxy.test:3128"};
    EXPECT_EQ(find("https://service.test/path"), "http://proxy.test:3128");
    EXPECT_EQ(portal.asked, QStringList("https://service.test/path"));
}

TEST_F(Proxies, FollowAChangeOfTheSettingsAtOnce)
{
    FakePortal portal(bus);
    portal.proxies = {"http://proxy.test:3128"};
    find();
    portal.proxies = {"direct://"};
    EXPECT_EQ(find(), "");
}

TEST_F(Proxies, AreNoneWithoutAPortal)
{
    EXPECT_EQ(find(), "");
}

TEST_F(Proxies, AreNoneWithoutABus)
{
    bus.stop();
    EXPECT_EQ(find(), "");
    peers::turnFor(50ms);
    EXPECT_EQ(find(), "");
}

TEST_F(Proxies, AreAgainThePortalsOnceTheLostBusHasReturned)
{
    bus.stop();
    ASSERT_TRUE(peers::turnUntil([&] { return !session.connection().isConnected(); }));
    EXPECT_EQ(find(), "");
    bus.start();
    FakePortal portal(bus);
    portal.proxies = {"http://proxy.test:3128"};
    ASSERT_TRUE(peers::turnUntil([&] { return session.connection().isConnected(); }));
    EXPECT_EQ(find(), "http://proxy.test:3128");
}

TEST_F(Proxies, AreNoneWhereThereHasNeverBeenABus)
{
    const SessionBus none("unix:path=/no/such/bus");
    PortalProxies lonely(none, main);
    std::optional<std::string> found;
    lonely.findProxy("https://service.test/", [&](std::string proxy) { found = std::move(proxy); });
    EXPECT_TRUE(peers::turnUntil([&] { return found == ""; }));
}

TEST_F(Proxies, AreNoneWhereThePortalSaysNothingAndItIsNotAskedWithEachRequest)
{
    FakePortal portal(bus);
    portal.isSilent = true;
    EXPECT_EQ(find(), "");
    EXPECT_EQ(find(), "");
    EXPECT_EQ(portal.asked.size(), 1);
}

TEST_F(Proxies, MayBeAskedForByAProgramThatEnds)
{
    bool isAnswered = false;
    {
        PortalProxies ending(session, main);
        ending.findProxy("https://service.test/", [&](const std::string&) { isAnswered = true; });
    }
    peers::turnFor(50ms);
    EXPECT_FALSE(isAnswered);
}

struct ProxyRow {
    QStringList given;
    std::string used;
};

class EachProxy : public testing::TestWithParam<ProxyRow> {};

TEST_P(EachProxy, IsSaidInTheWordsOfTheTransport)
{
    EXPECT_EQ(PortalProxies::usableProxy(GetParam().given), GetParam().used);
}

INSTANTIATE_TEST_SUITE_P(Kind, EachProxy,
    testing::Values(ProxyRow{{}, ""}, ProxyRow{{"direct://"}, ""}, ProxyRow{{"http://a:1"}, "http://a:1"},
        ProxyRow{{"https://a:1"}, "https://a:1"}, ProxyRow{{"socks://a:1"}, "socks5h://a:1"},
        ProxyRow{{"socks5://u:p@a:1"}, "socks5h://u:p@a:1"}, ProxyRow{{"socks4://a:1"}, "socks4://a:1"},
        ProxyRow{{"socks4a://a:1"}, "socks4a://a:1"}, ProxyRow{{"quic://a:1", "http://b:2"}, "http://b:2"},
        ProxyRow{{"nonsense"}, ""}, ProxyRow{{"direct://", "http://b:2"}, ""}));

}  // namespace
}  // namespace larkspan::adapters

#include "PortalProxiesTest.moc"
