#include <algorithm>

#include "TransportTest.h"

namespace larkspan::adapters {
namespace {

using Code = URLError::Code;
using namespace std::chrono_literals;
using testing::ElementsAre;

std::vector<int> connectionsOf(const FaultServer& server)
{
    std::vector<int> connections;
    for (const auto& request : server.requests()) connections.push_back(request.connection);
    return connections;
}

const FaultServer::Script welcome = [](Conversation& peer, const auto&) { peer.answer("200 OK", "hello"); };

TEST_F(Transport, SendsReadsOneAfterTheOtherOverOneConnection)
{
    FaultServer server(identity(), welcome);
    for (int i = 0; i < 4; ++i) EXPECT_THAT(send(get(server.url())), answers(200));
    EXPECT_EQ(server.handshakes(), 1);
}

TEST_F(Transport, SendsReadsAskedForAtOnceOverOneConnectionWhileAnswersAreQuick)
{
    FaultServer server(identity(), welcome);
    auto first = begin(get(server.url("/incidents")));
    auto second = begin(get(server.url("/maintenances")));
    EXPECT_THAT(first.get(), answers(200));
    EXPECT_THAT(second.get(), answers(200));
    EXPECT_EQ(server.handshakes(), 1);
}

TEST_F(Transport, GivesAReadBehindASlowOneAConnectionOfItsOwnAfterAShortWait)
{
    settings.patience = 50ms;
    FaultServer server(identity(), [](Conversation& peer, const ReceivedRequest& request) {
        if (request.line.starts_with("GET /slow")) peer.hang();
        peer.answer("200 OK");
    });
    auto slow = begin(get(server.url("/slow")));
    EXPECT_THAT(send(get(server.url("/quick"))), answers(200));
    EXPECT_THAT(connectionsOf(server), ElementsAre(1, 2));
    EXPECT_EQ(slow.wait_for(0s), std::future_status::timeout);
}

TEST_F(Transport, RecoversAReadWhoseKeptConnectionHasDied)
{
    FaultServer server(identity(), [](Conversation& peer, const ReceivedRequest& request) {
        peer.answer("200 OK", std::to_string(request.connection));
        if (request.connection == 1) peer.close();
    });
    EXPECT_THAT(send(get(server.url())), answers(200, "1"));
    EXPECT_THAT(send(get(server.url())), answers(200, "2"));
}

TEST_F(Transport, RecoversAReadWhoseKeptConnectionDiesAsItArrives)
{
    FaultServer server(identity(), [isFirst = true](Conversation& peer, const ReceivedRequest& request) mutable {
        if (request.connection == 1 && !std::exchange(isFirst, false)) return peer.close();
        peer.answer("200 OK", std::to_string(request.connection));
    });
    EXPECT_THAT(send(get(server.url())), answers(200, "1"));
    EXPECT_THAT(send(get(server.url())), answers(200, "2"));
    EXPECT_THAT(connectionsOf(server), ElementsAre(1, 1, 2));
}

TEST_F(Transport, TakesNoAnswerThatCameUnaskedForThatToTheNextRead)
{
    FaultServer server(identity(), [](Conversation& peer, const ReceivedRequest& request) {
        peer.answer("200 OK", "the answer to " + request.line.substr(0, 6));
        if (request.connection > 1) return;
        std::this_thread::sleep_for(10ms);
        peer.answer("200 OK", "forged");
    });
    EXPECT_THAT(send(get(server.url("/1"))), answers(200, "the answer to GET /1"));
    std::this_thread::sleep_for(100ms);
    EXPECT_THAT(send(get(server.url("/2"))), answers(200, "the answer to GET /2"));
    EXPECT_THAT(send(get(server.url("/3"))), answers(200, "the answer to GET /3"));
    EXPECT_THAT(connectionsOf(server), ElementsAre(1, 2, 2));
}

TEST_F(Transport, TakesTheBodyOfAnAnswerThatMayHaveNoneForNoAnswer)
{
    FaultServer server(identity(), [](Conversation& peer, const ReceivedRequest& request) {
        if (request.line.starts_with("GET")) return peer.answer("200 OK", "pages");
        peer.answer("204 No Content", "more");
    });
    EXPECT_THAT(send(request("DELETE", server.url())), answers(204, ""));
    EXPECT_THAT(send(get(server.url())), answers(200, "pages"));
}

class EachWrite : public Transport, public testing::WithParamInterface<const char*> {
protected:
    HttpRequest write(const FaultServer& server) const { return request(GetParam(), server.url("/write"), "{}"); }

    static long writesIn(const FaultServer& server)
    {
        return std::ranges::count_if(
            server.requests(), [](const auto& request) { return request.line.find("/write") != std::string::npos; });
    }
};

INSTANTIATE_TEST_SUITE_P(Method, EachWrite, testing::Values("POST", "PUT", "PATCH", "DELETE"));

TEST_P(EachWrite, GoesOverAFreshConnectionThoughOneIsAtHand)
{
    FaultServer server(identity(), welcome);
    send(get(server.url()));
    EXPECT_THAT(send(write(server)), answers(200));
    EXPECT_THAT(send(write(server)), answers(200));
    EXPECT_THAT(connectionsOf(server), ElementsAre(1, 2, 3));
}

TEST_P(EachWrite, LeavesItsConnectionToNoRead)
{
    FaultServer server(identity(), welcome);
    EXPECT_THAT(send(write(server)), answers(200));
    EXPECT_THAT(send(get(server.url())), answers(200));
    EXPECT_THAT(connectionsOf(server), ElementsAre(1, 2));
}

TEST_P(EachWrite, ArrivesOnceWhereItsConnectionIsClosedBeforeTheFirstByteOfAnAnswer)
{
    FaultServer server(identity(), [](Conversation& peer, const auto&) { peer.close(); });
    EXPECT_THAT(send(write(server)), fails(Code::networkConnectionLost));
    EXPECT_EQ(writesIn(server), 1);
    EXPECT_EQ(server.connections(), 1);
}

TEST_P(EachWrite, ArrivesOnceWhereItsConnectionIsReset)
{
    FaultServer server(identity(), [](Conversation& peer, const auto&) { peer.reset(); });
    EXPECT_THAT(send(write(server)), fails(Code::networkConnectionLost));
    EXPECT_EQ(writesIn(server), 1);
}

TEST_P(EachWrite, ArrivesOnceWhereAllKeptConnectionsHaveDied)
{
    FaultServer server(identity(), [](Conversation& peer, const ReceivedRequest& request) {
        if (request.line.starts_with("GET")) peer.answer("200 OK");
        peer.close();
    });
    send(get(server.url()));
    EXPECT_THAT(send(write(server)), fails(Code::networkConnectionLost));
    EXPECT_EQ(writesIn(server), 1);
}

TEST_P(EachWrite, ArrivesOnceWhereItIsNeverAnswered)
{
    settings.idleTimeout = 500ms;
    FaultServer server(identity(), [](Conversation& peer, const auto&) { peer.hang(); });
    EXPECT_THAT(send(write(server)), fails(Code::timedOut));
    EXPECT_EQ(writesIn(server), 1);
}

TEST_P(EachWrite, WaitsForNoRead)
{
    settings.patience = 1h;
    FaultServer server(identity(), [](Conversation& peer, const ReceivedRequest& request) {
        if (request.line.starts_with("GET")) peer.hang();
        peer.answer("200 OK");
    });
    [[maybe_unused]] const auto unanswered = begin(get(server.url()));
    EXPECT_THAT(send(write(server)), answers(200));
}

}  // namespace
}  // namespace larkspan::adapters
