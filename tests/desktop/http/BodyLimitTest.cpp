#include <atomic>
#include <memory>

#include "Packing.h"
#include "TransportTest.h"

namespace larkspan::adapters {
namespace {

using Code = URLError::Code;

constexpr std::size_t mebibyte = 1024 * 1024;

/// Sends `total` bytes, or as many as are accepted, and counts them.
struct Flood {
    std::string head;
    std::size_t total;
    std::shared_ptr<std::atomic<std::size_t>> taken = std::make_shared<std::atomic<std::size_t>>(0);

    void operator()(Conversation& peer, const ReceivedRequest&) const
    {
        const std::string piece(mebibyte, ' ');
        peer.write(head);
        while (*taken < total && peer.write(piece)) *taken += piece.size();
        peer.close();
    }
};

TEST_F(Transport, StopsABodyOfAnnouncedLengthBeforeItsFirstByteCounts)
{
    const Flood flood{"HTTP/1.1 200 OK\r\nContent-Length: 209715200\r\n\r\n", 200 * mebibyte};
    FaultServer server(identity(), flood);
    EXPECT_THAT(send(get(server.url())), fails(Code::dataLengthExceedsMaximum));
    EXPECT_LT(*flood.taken, 16 * mebibyte);
}

TEST_F(Transport, StopsABodyOfUnknownLengthAtTheLimit)
{
    const Flood flood{"HTTP/1.1 200 OK\r\n\r\n", 200 * mebibyte};
    FaultServer server(identity(), flood);
    EXPECT_THAT(send(get(server.url())), fails(Code::dataLengthExceedsMaximum));
    EXPECT_GE(*flood.taken, 32 * mebibyte);
    EXPECT_LT(*flood.taken, 48 * mebibyte);
}

TEST_F(Transport, StopsAPackedBodyThatUnpacksPastTheLimit)
{
    const auto bomb = gzip(std::string(40 * mebibyte, ' '));
    ASSERT_LT(bomb.size(), mebibyte);
    FaultServer server(identity(),
        [&](Conversation& peer, const auto&) { peer.answer("200 OK", bomb, "Content-Encoding: gzip\r\n"); });
    EXPECT_THAT(send(get(server.url())), fails(Code::dataLengthExceedsMaximum));
}

struct LimitRow {
    std::size_t size;
    bool isTaken;
};

class BodyAtTheLimit : public Transport, public testing::WithParamInterface<LimitRow> {};

TEST_P(BodyAtTheLimit, IsTakenUpToTheLastByteItAllows)
{
    settings.largestBody = 100'000;
    const std::string body(GetParam().size, 'x');
    FaultServer server(identity(), [&](Conversation& peer, const ReceivedRequest& request) {
        if (request.line.starts_with("GET /plain")) return peer.answer("200 OK", body);
        peer.answer("200 OK", gzip(body), "Content-Encoding: gzip\r\n");
    });
    for (const auto* target : {"/plain", "/packed"}) {
        const auto result = send(get(server.url(target)));
        if (GetParam().isTaken)
            EXPECT_THAT(result, answers(200, body));
        else
            EXPECT_THAT(result, fails(Code::dataLengthExceedsMaximum));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Size, BodyAtTheLimit, testing::Values(LimitRow{99'999, true}, LimitRow{100'000, true}, LimitRow{100'001, false}));

TEST_F(Transport, AllowsABodyOf32Mebibytes)
{
    EXPECT_EQ(TransportSettings().largestBody, 32 * mebibyte);
}

}  // namespace
}  // namespace larkspan::adapters
