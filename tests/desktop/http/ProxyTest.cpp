#include <atomic>
#include <cstdlib>
#include <optional>

#include "FakeNetwork.h"
#include "TransportTest.h"
#include "TunnelProxy.h"

namespace larkspan::adapters {
namespace {

using Code = URLError::Code;
using namespace std::chrono_literals;

const FaultServer::Script welcome = [](Conversation& peer, const auto&) { peer.answer("200 OK", "hello"); };

/// A desktop with one proxy for everything.
class FixedProxy : public ProxySettings {
public:
    explicit FixedProxy(std::string proxy)
        : proxy_(std::move(proxy))
    {
    }
    void findProxy(std::string, support::UniqueFunction<void(std::string)> answer) override { answer(proxy_); }

private:
    const std::string proxy_;
};

class UnansweredProxy : public ProxySettings {
public:
    void findProxy(std::string, support::UniqueFunction<void(std::string)> answer) override
    {
        unanswered_.push_back(std::move(answer));
        hasBeenAsked_ = true;
    }

    bool isAsked() const { return hasBeenAsked_; }
    void answerAll(const std::string& proxy)
    {
        for (auto& answer : unanswered_) answer(proxy);
    }

private:
    std::vector<support::UniqueFunction<void(std::string)>> unanswered_;
    std::atomic<bool> hasBeenAsked_{false};
};

/// Sets a variable of the environment while it exists.
class Variable {
public:
    Variable(const char* name, const std::string& value)
        : name_(name)
    {
        setenv(name, value.c_str(), 1);
    }
    ~Variable() { unsetenv(name_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* name_;
};

HttpRequest withKey(HttpRequest made)
{
    made.headers = {{"Authorization", "Bearer secret"}, {"X-API-Key", "secret"}};
    return made;
}

TEST_F(Transport, TakesUpARequestOfItsOwnLoopInTheSameTurn)
{
    UnansweredProxy desktop;
    settings.proxies = &desktop;
    std::promise<bool> isUnderWay;
    loop.post([&] {
        transport().send(get("https://a.invalid/"), {}, [](const Result&) {});
        isUnderWay.set_value(desktop.isAsked());
    });
    EXPECT_TRUE(isUnderWay.get_future().get());
    dropTransport();
}

TEST_F(Transport, GoesThroughTheProxyOfTheDesktopAndTellsItNoKey)
{
    FaultServer server(identity(), welcome);
    TunnelProxy proxy;
    FixedProxy desktop(proxy.url());
    settings.proxies = &desktop;

    EXPECT_THAT(send(withKey(get(server.url()))), answers(200, "hello"));

    ASSERT_EQ(proxy.heads().size(), 1);
    const auto head = proxy.heads()[0];
    EXPECT_TRUE(head.starts_with("CONNECT 127.0.0.1:" + std::to_string(server.port()) + " HTTP/1.1\r\n")) << head;
    EXPECT_EQ(head.find("secret"), std::string::npos);
    EXPECT_EQ(server.requests().at(0).header("x-api-key"), "secret");
}

TEST_F(Transport, GoesThroughTheProxyOfTheEnvironmentBeforeTheDesktops)
{
    FaultServer server(identity(), welcome);
    TunnelProxy proxy;
    const Variable environment("https_proxy", proxy.url());
    FixedProxy desktop("http://nowhere.invalid:1");
    settings.proxies = &desktop;
    EXPECT_THAT(send(get(server.url())), answers(200, "hello"));
    EXPECT_EQ(proxy.heads().size(), 1);
}

TEST_F(Transport, GoesStraightWhereTheDesktopSaysSo)
{
    FaultServer server(identity(), welcome);
    FixedProxy desktop("");
    settings.proxies = &desktop;
    EXPECT_THAT(send(get(server.url())), answers(200, "hello"));
}

TEST_F(Transport, VerifiesTheServerBehindAProxy)
{
    const Authority stranger("A stranger");
    FaultServer server(stranger.issue(), welcome);
    TunnelProxy proxy;
    FixedProxy desktop(proxy.url());
    settings.proxies = &desktop;
    EXPECT_THAT(send(withKey(get(server.url()))), fails(Code::serverCertificateUntrusted));
    EXPECT_TRUE(server.requests().empty());
}

TEST_F(Transport, ReportsAProxyThatRefusesAsNoConnectionAndNeverItsStatus)
{
    FaultServer server(identity(), welcome);
    for (const auto* status : {"407 Proxy Authentication Required", "403 Forbidden", "502 Bad Gateway"}) {
        TunnelProxy proxy(status);
        FixedProxy desktop(proxy.url());
        settings.proxies = &desktop;
        EXPECT_THAT(send(get(server.url())), fails(Code::cannotConnectToHost)) << status;
        dropTransport();
    }
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(Transport, ReportsAProxyThatCannotBeFound)
{
    FixedProxy desktop("http://nowhere.invalid:3128");
    settings.proxies = &desktop;
    EXPECT_THAT(send(get("https://service.test/")), fails(Code::dnsLookupFailed));
}

TEST_F(Transport, HoldsToItsTimeWhileTheProxyIsLookedUp)
{
    UnansweredProxy desktop;
    settings.proxies = &desktop;
    auto sent = get("https://service.test/");
    sent.timeout = 50ms;
    EXPECT_THAT(send(sent), fails(Code::timedOut));
    dropTransport();
}

TEST_F(Transport, TakesAProxyThatComesAfterTheEndForNothing)
{
    UnansweredProxy desktop;
    settings.proxies = &desktop;
    std::optional<ClientLoop> client(std::in_place);
    CurlTransport stopped(*client, settings);
    bool isCompleted = false;
    stopped.send(get("https://service.test/"), {}, [&](const Result&) { isCompleted = true; });
    while (!desktop.isAsked()) std::this_thread::sleep_for(1ms);

    stopped.stop();
    client.reset();
    desktop.answerAll("http://proxy.test:3128");

    EXPECT_FALSE(isCompleted);
}

TEST_F(Transport, SendsAWriteThroughAProxyOnceOverATunnelOfItsOwn)
{
    FaultServer server(identity(), [](Conversation& peer, const ReceivedRequest& request) {
        if (request.line.starts_with("GET")) return peer.answer("200 OK");
        peer.close();
    });
    TunnelProxy proxy;
    FixedProxy desktop(proxy.url());
    settings.proxies = &desktop;
    EXPECT_THAT(send(get(server.url())), answers(200));
    EXPECT_THAT(send(request("POST", server.url(), "{}")), fails(Code::networkConnectionLost));
    EXPECT_EQ(server.requests().size(), 2);
    EXPECT_EQ(proxy.heads().size(), 2);
}

}  // namespace
}  // namespace larkspan::adapters
