#include <cmath>

#include "FakeNetwork.h"
#include "TransportTest.h"

namespace larkspan::adapters {
namespace {

using Code = URLError::Code;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

HttpRequest within(std::chrono::milliseconds timeout, std::string url)
{
    auto made = get(std::move(url));
    made.timeout = timeout;
    return made;
}

/// Sends an answer's bytes one by one.
FaultServer::Script drips(std::string text, std::chrono::milliseconds pause)
{
    return [text = std::move(text), pause](Conversation& peer, const auto&) {
        for (const char& byte : text) {
            if (!peer.write({&byte, 1})) return;
            std::this_thread::sleep_for(pause);
        }
    };
}

const FaultServer::Script hangs = [](Conversation& peer, const auto&) { peer.hang(); };

class TimeLimit : public Transport {
protected:
    /// Expects the request to time out no sooner than after `least` and not much later.
    void expectTimeOut(HttpRequest request, std::chrono::milliseconds least)
    {
        const auto start = Clock::now();
        EXPECT_THAT(send(std::move(request)), fails(Code::timedOut));
        EXPECT_GE(Clock::now() - start, least);
        EXPECT_LE(Clock::now() - start, least + 1s);
    }
};

TEST_F(TimeLimit, EndsARequestThatHangsPastIt)
{
    FaultServer server(identity(), hangs);
    expectTimeOut(within(150ms, server.url()), 150ms);
    EXPECT_EQ(server.requests().size(), 1);
}

TEST_F(TimeLimit, EndsAnAnswerThatDripsPastIt)
{
    settings.idleTimeout = 350ms;
    FaultServer server(
        identity(), drips("HTTP/1.1 200 OK\r\nContent-Length: 9000\r\n\r\n" + std::string(9'000, 'x'), 5ms));
    expectTimeOut(within(400ms, server.url()), 400ms);
}

TEST_F(TimeLimit, HoldsForRedirectsTogether)
{
    FaultServer server(identity(), [](Conversation& peer, const auto&) {
        std::this_thread::sleep_for(40ms);
        peer.answer("302 Found", "", "Location: /again\r\n");
    });
    expectTimeOut(within(150ms, server.url()), 150ms);
}

TEST_F(TimeLimit, EndsARequestWhoseNameIsNotLookedUpInTime)
{
    const SilentResolver silent;
    expectTimeOut(within(100ms, "https://hangs.invalid/"), 100ms);
}

TEST_F(TimeLimit, EndsAHandshakeThatHangs)
{
    settings.idleTimeout = 100ms;
    FaultServer server(identity(), hangs);
    server.greet(FaultServer::Greeting::silence);
    expectTimeOut(get(server.url()), 100ms);
}

TEST_F(TimeLimit, OfSilenceEndsARequestThatGetsNoByte)
{
    settings.idleTimeout = 100ms;
    FaultServer server(identity(), hangs);
    expectTimeOut(get(server.url()), 100ms);
}

TEST_F(TimeLimit, OfSilenceEndsABodyThatStops)
{
    settings.idleTimeout = 100ms;
    FaultServer server(identity(), [](Conversation& peer, const auto&) {
        peer.write("HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nabc");
        peer.hang();
    });
    expectTimeOut(get(server.url()), 100ms);
}

TEST_F(TimeLimit, OfSilenceStartsAgainWithEachByteOfHeadAndBody)
{
    settings.idleTimeout = 600ms;
    FaultServer server(identity(), drips("HTTP/1.1 200 OK\r\nX: y\r\nContent-Length: 9\r\n\r\n123456789", 20ms));
    EXPECT_THAT(send(get(server.url())), answers(200, "123456789"));
}

TEST_F(TimeLimit, LeavesARequestInTimeAlone)
{
    FaultServer server(identity(), [](Conversation& peer, const auto&) { peer.answer("200 OK"); });
    EXPECT_THAT(send(within(5s, server.url())), answers(200));
    EXPECT_EQ(TransportSettings().idleTimeout, 30s);
    EXPECT_EQ(HttpRequest().timeout, 60s);
}

}  // namespace
}  // namespace larkspan::adapters
