#include "FakeNetwork.h"
#include "TransportTest.h"

namespace larkspan::adapters {
namespace {

using Code = URLError::Code;

int portWithoutListener()
{
    const FaultServer gone(identity(), nullptr);
    return gone.port();
}

TEST_F(Transport, ReportsAnUnknownHost)
{
    EXPECT_THAT(send(get("https://nowhere.invalid/")), fails(Code::cannotFindHost));
}

TEST_F(Transport, ReportsAnUnknownHostOnAComputerWithoutNetworkAsNotConnected)
{
    const NoInterfaces none;
    EXPECT_THAT(send(get("https://nowhere.invalid/")), fails(Code::notConnectedToInternet));
}

TEST_F(Transport, ReportsARefusedConnection)
{
    const auto url = "https://127.0.0.1:" + std::to_string(portWithoutListener()) + "/";
    EXPECT_THAT(send(get(url)), fails(Code::cannotConnectToHost));
}

struct FaultRow {
    std::string what;
    FaultServer::Script script;
    Code code;

    friend void PrintTo(const FaultRow& row, std::ostream* out) { *out << row.what; }
};

class EachFault : public Transport, public testing::WithParamInterface<FaultRow> {};

TEST_P(EachFault, EndsTheRequestWithItsCodeAndNoPartOfABody)
{
    FaultServer server(identity(), GetParam().script);
    EXPECT_THAT(send(get(server.url())), fails(GetParam().code));
}

/// Sends `text` and then ends the stream with `end`.
FaultServer::Script says(std::string text, void (Conversation::*end)())
{
    return [text = std::move(text), end](Conversation& peer, const auto&) {
        peer.write(text);
        (peer.*end)();
    };
}

const std::string tenBytesPromised = "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nabc";
const std::string chunksUnfinished = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n";
const std::string lengthUnknown = "HTTP/1.1 200 OK\r\n\r\nabc";
constexpr auto closed = &Conversation::close;
constexpr auto cutOff = &Conversation::cut;
constexpr auto broken = &Conversation::reset;
constexpr auto kept = &Conversation::hang;

INSTANTIATE_TEST_SUITE_P(Fault, EachFault,
    testing::Values(FaultRow{"closed before the first byte", says("", closed), Code::networkConnectionLost},
        FaultRow{"cut before the first byte", says("", cutOff), Code::networkConnectionLost},
        FaultRow{"reset before the first byte", says("", broken), Code::networkConnectionLost},
        FaultRow{"closed in the status line", says("HTTP/1.1 2", closed), Code::networkConnectionLost},
        FaultRow{"closed in the headers", says("HTTP/1.1 200 OK\r\nContent-Le", closed), Code::networkConnectionLost},
        FaultRow{"closed in a body of known length", says(tenBytesPromised, closed), Code::networkConnectionLost},
        FaultRow{"cut in a body of known length", says(tenBytesPromised, cutOff), Code::networkConnectionLost},
        FaultRow{"reset in a body of known length", says(tenBytesPromised, broken), Code::networkConnectionLost},
        FaultRow{"closed between chunks", says(chunksUnfinished, closed), Code::networkConnectionLost},
        FaultRow{"cut between chunks", says(chunksUnfinished, cutOff), Code::networkConnectionLost},
        FaultRow{"reset between chunks", says(chunksUnfinished, broken), Code::networkConnectionLost},
        FaultRow{"cut in a body of unknown length", says(lengthUnknown, cutOff), Code::networkConnectionLost},
        FaultRow{"reset in a body of unknown length", says(lengthUnknown, broken), Code::networkConnectionLost},
        FaultRow{"a body without a head", says("<html>hello</html>", closed), Code::badServerResponse},
        FaultRow{"bytes of no protocol", says(std::string("\x16\x03\x01\0\xff\xfe\r\n\r\n", 10), closed),
            Code::badServerResponse},
        FaultRow{"a status that is no number", says("HTTP/1.1 abc OK\r\n\r\n", closed), Code::badServerResponse},
        FaultRow{"another version of HTTP", says("HTTP/7.3 200 OK\r\nContent-Length: 0\r\n\r\n", kept),
            Code::badServerResponse},
        FaultRow{"a length that is no number", says("HTTP/1.1 200 OK\r\nContent-Length: ten\r\n\r\n", closed),
            Code::badServerResponse},
        FaultRow{"two lengths that differ",
            says("HTTP/1.1 200 OK\r\nContent-Length: 3\r\nContent-Length: 5\r\n\r\nabcde", kept),
            Code::badServerResponse},
        FaultRow{"two lengths that differ in one header",
            says("HTTP/1.1 200 OK\r\nContent-Length: 3, 5\r\n\r\nabcde", kept), Code::badServerResponse},
        FaultRow{"a redirect of two lengths",
            says("HTTP/1.1 302 Found\r\nLocation: /\r\nContent-Length: 0\r\nContent-Length: 1\r\n\r\n", kept),
            Code::badServerResponse},
        FaultRow{"chunks of no size",
            says("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nxyz\r\nabc\r\n", closed),
            Code::networkConnectionLost},
        FaultRow{"a packing unknown here",
            says("HTTP/1.1 200 OK\r\nContent-Encoding: magic\r\nContent-Length: 3\r\n\r\nabc", kept),
            Code::badServerResponse},
        FaultRow{"a packed body that is none",
            says("HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: 3\r\n\r\nabc", kept),
            Code::badServerResponse}),
    [](const auto& row) {
        auto name = row.param.what;
        std::ranges::replace(name, ' ', '_');
        return name;
    });

TEST_F(Transport, GivesUpOnHeadersWithoutEnd)
{
    FaultServer server(identity(), [](Conversation& peer, const auto&) {
        peer.write("HTTP/1.1 200 OK\r\n");
        while (peer.write("X-More: " + std::string(8'000, 'x') + "\r\n")) {}
    });
    EXPECT_THAT(send(get(server.url())), fails(Code::badServerResponse));
}

class EndlessLine : public Transport, public testing::WithParamInterface<const char*> {};

TEST_P(EndlessLine, OfAHeadIsAnAnswerThatCannotBeUnderstood)
{
    FaultServer server(identity(), [](Conversation& peer, const auto&) {
        peer.write(GetParam());
        while (peer.write(std::string(8'000, 'x'))) {}
    });
    EXPECT_THAT(send(get(server.url())), fails(Code::badServerResponse));
}

INSTANTIATE_TEST_SUITE_P(
    Beginning, EndlessLine, testing::Values("HTTP/1.1 200 ", "HTTP/1.1 200 OK\r\nX-Long: ", "HTTP/1.1 200 OK\r\n"));

TEST_F(Transport, GivesUpOnInterimAnswersWithoutEnd)
{
    FaultServer server(identity(), [](Conversation& peer, const auto&) {
        while (peer.write("HTTP/1.1 102 Processing\r\n\r\n")) {}
    });
    EXPECT_THAT(send(get(server.url())), fails(Code::badServerResponse));
}

TEST_F(Transport, IsUsableAtOnceAfterAFault)
{
    bool isFirst = true;
    FaultServer server(identity(), [&](Conversation& peer, const auto&) {
        if (std::exchange(isFirst, false)) return peer.reset();
        peer.answer("200 OK", "mended");
    });
    EXPECT_THAT(send(get(server.url())), fails(Code::networkConnectionLost));
    EXPECT_THAT(send(get(server.url())), answers(200, "mended"));
}

}  // namespace
}  // namespace larkspan::adapters
