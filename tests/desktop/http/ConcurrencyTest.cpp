#include "TransportTest.h"

namespace larkspan::adapters {
namespace {

using namespace std::chrono_literals;

TEST_F(Transport, AnswersAHundredRequestsAtOnceEachWithItsOwn)
{
    settings.patience = 20ms;
    FaultServer server(identity(), [](Conversation& peer, const ReceivedRequest& request) {
        std::this_thread::sleep_for(5ms);
        peer.answer("200 OK", request.line + request.body);
    });
    std::vector<std::future<Result>> results;
    for (int i = 0; i < 100; ++i) {
        const auto target = "/" + std::to_string(i);
        results.push_back(begin(i % 2 == 0 ? get(server.url(target)) : request("POST", server.url(target), "body")));
    }
    for (std::size_t i = 0; i < results.size(); ++i) {
        const auto target = "/" + std::to_string(i) + " HTTP/1.1";
        EXPECT_THAT(results[i].get(), answers(200, i % 2 == 0 ? "GET " + target : "POST " + target + "body"));
    }
    EXPECT_EQ(server.requests().size(), 100);
}

TEST_F(Transport, TakesRequestsFromManyThreads)
{
    FaultServer server(
        identity(), [](Conversation& peer, const ReceivedRequest& request) { peer.answer("200 OK", request.line); });
    transport();
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 8; ++thread)
            threads.emplace_back([&, thread] {
                for (int i = 0; i < 25; ++i) {
                    const auto target = "/" + std::to_string(thread) + "/" + std::to_string(i);
                    EXPECT_THAT(send(get(server.url(target))), answers(200, "GET " + target + " HTTP/1.1"));
                }
            });
    }
    EXPECT_EQ(server.requests().size(), 200);
}

}  // namespace
}  // namespace larkspan::adapters
