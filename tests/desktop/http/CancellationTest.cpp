#include <atomic>

#include "FakeNetwork.h"
#include "TransportTest.h"
#include "support/Completion.h"
#include "support/Task.h"

namespace larkspan::adapters {
namespace {

using Code = URLError::Code;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

const FaultServer::Script hangs = [](Conversation& peer, const auto&) { peer.hang(); };

template <typename Begin>
support::Task<void> awaitWith(Begin begin, std::shared_ptr<int> held)
{
    auto answer = support::completion<int>(std::move(begin));
    co_await std::move(answer);
    ++*held;
}

void waitForRequest(const FaultServer& server, std::size_t count = 1)
{
    while (server.requests().size() < count) std::this_thread::sleep_for(1ms);
}

TEST_F(Transport, SendsNothingWhereTheStopCameFirst)
{
    FaultServer server(identity(), hangs);
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THAT(send(get(server.url()), stop.get_token()), fails(Code::cancelled));
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(Transport, EndsARequestUnderWayAtAStop)
{
    FaultServer server(identity(), hangs);
    std::stop_source stop;
    auto result = begin(get(server.url()), stop.get_token());
    waitForRequest(server);
    stop.request_stop();
    EXPECT_THAT(result.get(), fails(Code::cancelled));
}

TEST_F(Transport, EndsABodyUnderWayAtAStopAndGivesNoPartOfIt)
{
    FaultServer server(identity(), [](Conversation& peer, const auto&) {
        peer.write("HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nabc");
        peer.hang();
    });
    std::stop_source stop;
    auto result = begin(get(server.url()), stop.get_token());
    waitForRequest(server);
    stop.request_stop();
    EXPECT_THAT(result.get(), fails(Code::cancelled));
}

TEST_F(Transport, EndsALookUpThatHangsAtAStopWithoutWaitingForIt)
{
    const SilentResolver silent;
    std::stop_source stop;
    auto result = begin(get("https://hangs.invalid/"), stop.get_token());
    std::this_thread::sleep_for(50ms);
    const auto start = Clock::now();
    stop.request_stop();
    EXPECT_THAT(result.get(), fails(Code::cancelled));
    EXPECT_LT(Clock::now() - start, 1s);
}

TEST_F(Transport, EndsAReadThatWaitsForItsTurnAtAStop)
{
    settings.patience = 1h;
    FaultServer server(identity(), hangs);
    auto first = begin(get(server.url()));
    std::stop_source stop;
    auto second = begin(get(server.url()), stop.get_token());
    waitForRequest(server);
    stop.request_stop();
    EXPECT_THAT(second.get(), fails(Code::cancelled));
    EXPECT_EQ(server.requests().size(), 1);
}

TEST_F(Transport, GivesTheTurnOfACancelledReadToTheNext)
{
    settings.patience = 1h;
    FaultServer server(identity(), [](Conversation& peer, const ReceivedRequest& request) {
        if (request.line.starts_with("GET /slow")) return peer.hang();
        peer.answer("200 OK");
    });
    std::stop_source stop;
    auto first = begin(get(server.url("/slow")), stop.get_token());
    auto second = begin(get(server.url("/quick")));
    waitForRequest(server);
    stop.request_stop();
    EXPECT_THAT(first.get(), fails(Code::cancelled));
    EXPECT_THAT(second.get(), answers(200));
}

TEST_F(Transport, IgnoresAStopAfterTheEnd)
{
    FaultServer server(identity(), [](Conversation& peer, const auto&) { peer.answer("200 OK"); });
    std::stop_source stop;
    EXPECT_THAT(send(get(server.url()), stop.get_token()), answers(200));
    stop.request_stop();
    EXPECT_THAT(send(get(server.url())), answers(200));
}

TEST_F(Transport, CompletesOnceWhenAStopRacesWithTheAnswer)
{
    FaultServer server(identity(), [](Conversation& peer, const auto&) { peer.answer("200 OK"); });
    for (int i = 0; i < 200; ++i) {
        std::stop_source stop;
        auto result = begin(get(server.url()), stop.get_token());
        std::this_thread::sleep_for(std::chrono::microseconds(i * 5));
        stop.request_stop();
        EXPECT_THAT(result.get(), testing::AnyOf(answers(200), fails(Code::cancelled)));
    }
}

TEST_F(Transport, DropsCompletionsUncalledWhenItIsDestroyedAndWithinMilliseconds)
{
    FaultServer server(identity(), hangs);
    auto running = begin(get(server.url()));
    auto waiting = begin(get(server.url()));
    auto writing = begin(request("POST", server.url(), "{}"));
    waitForRequest(server, 2);

    const auto start = Clock::now();
    dropTransport();
    const auto duration = Clock::now() - start;

    EXPECT_LT(duration, 100ms);
    for (auto* dropped : {&running, &waiting, &writing}) EXPECT_THROW(dropped->get(), std::future_error);
}

TEST_F(Transport, GoesWithinMillisecondsInTheMiddleOfALookUp)
{
    const SilentResolver silent;
    auto dropped = begin(get("https://hangs.invalid/"));
    std::this_thread::sleep_for(50ms);

    const auto start = Clock::now();
    dropTransport();
    const auto duration = Clock::now() - start;

    EXPECT_LT(duration, 100ms);
    EXPECT_THROW(dropped.get(), std::future_error);
}

TEST_F(Transport, MayGoFromWithinACompletion)
{
    FaultServer server(identity(), [](Conversation& peer, const auto&) { peer.answer("200 OK"); });
    std::promise<void> gone;
    transport().send(get(server.url()), {}, [&](const Result&) {
        dropTransport();
        gone.set_value();
    });
    EXPECT_EQ(gone.get_future().wait_for(10s), std::future_status::ready);
}

TEST_F(Transport, UnwindsTheTasksThatAwaitItWhenItGoes)
{
    FaultServer server(identity(), hangs);
    auto held = std::make_shared<int>(1);
    const std::weak_ptr<int> frame = held;
    auto ask = [this, &server](support::Completion<int> answer) {
        transport().send(get(server.url()), {},
            [answer = std::move(answer)](const Result&) mutable { answer.give(support::Outcome<int>::success(1)); });
    };
    support::start(loop, awaitWith(std::move(ask), std::move(held)));
    waitForRequest(server);
    EXPECT_FALSE(frame.expired());

    dropTransport();
    std::promise<void> drained;
    loop.post([&] { drained.set_value(); });
    drained.get_future().wait();
    EXPECT_TRUE(frame.expired());
}

}  // namespace
}  // namespace larkspan::adapters
