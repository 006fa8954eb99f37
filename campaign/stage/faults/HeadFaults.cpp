#include "stage/Endings.h"

namespace larkspan::campaign {

namespace {

/// Answers with `head`, which ends without an empty line, and the true body.
Fault head(
    const std::string& name, Ending ending, const std::string& text, void (adapters::Conversation::*end)() = nullptr)
{
    return {name, std::move(ending), [text, end](Turn& turn) {
                const auto body = bodyOf(turn.answer());
                turn.peer.write(text + "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body);
                if (end) (turn.peer.*end)();
            }};
}

/// Answers with bytes that need not be a head, and closes the connection.
Fault bytes(const std::string& name, const std::string& text)
{
    return {name, endsWith(notUnderstood), [text](Turn& turn) {
                turn.answer();
                turn.peer.write(text);
                turn.peer.close();
            }};
}

/// Writes `start` and then `more` until the client has enough.
Fault endless(const std::string& name, const std::string& start, const std::string& more)
{
    return {name, endsWith(notUnderstood), [start, more](Turn& turn) {
                turn.answer();
                turn.peer.write(start);
                while (turn.peer.write(more)) {}
            }};
}

std::string repeated(const std::string& text, int times)
{
    std::string all;
    for (int at = 0; at < times; ++at) all += text;
    return all;
}

}  // namespace

std::vector<Fault> headFaults()
{
    const std::string ok = "HTTP/1.1 200 OK\r\n";
    const std::string kilobyte(1'000, 'x');
    return {
        endless("a head without end", ok, "X-More: " + kilobyte + "\r\n"),
        endless("a line of the head without end", ok + "X-Long: ", kilobyte),
        endless("a status line without end", "HTTP/1.1 200 ", kilobyte),
        endless("interim answers without end", "", repeated("HTTP/1.1 102 Processing\r\n\r\n", 300)),
        head("a giant head", endsWith(notUnderstood), ok + repeated("X-More: " + kilobyte + "\r\n", 400)),
        head("a giant header", endsWith(notUnderstood), ok + "X-Giant: " + std::string(400'000, 'x') + "\r\n"),
        head("a hundred thousand headers", endsWith(notUnderstood), ok + repeated("X: y\r\n", 100'000)),
        head("a hundred headers", succeeds, ok + repeated("X: y\r\n", 100)),
        head("an interim answer first", succeeds, "HTTP/1.1 103 Early Hints\r\nLink: </x>\r\n\r\n" + ok),
        head("leave to go on first", succeeds, "HTTP/1.1 100 Continue\r\n\r\n" + ok),
        head("an interim failure first", succeeds, "HTTP/1.1 199 Odd\r\n\r\n" + ok),
        head("HTTP 1.0", succeeds, "HTTP/1.0 200 OK\r\n"),
        head("a status without words", succeeds, "HTTP/1.1 200\r\n"),
        head("lines that end in a newline only", succeeds, "HTTP/1.1 200 OK\nX: y\n"),
        head("a header of bytes that are no text", succeeds, ok + "X-Odd: \xff\xfe\r\n"),
        head("a header without a value", succeeds, ok + "X-Empty:\r\n"),
        head("a type that is not JSON", succeeds, ok + "Content-Type: text/html\r\n"),
        head("cookies", succeeds, ok + repeated("Set-Cookie: a=b; Domain=localhost\r\n", 50)),
        bytes("no HTTP", "220 mail.example ESMTP\r\n"),
        bytes("a body without a head", "<html>It works!</html>"),
        bytes("a status that is no number", "HTTP/1.1 abc OK\r\n\r\n"),
        bytes("HTTP of a version unknown here", "HTTP/7.3 200 OK\r\nContent-Length: 2\r\n\r\n{}"),
        bytes("a frame of HTTP 2", std::string("\0\0\x12\x04\0\0\0\0\0", 9) + std::string(18, 'x')),
        bytes("another protocol's name", "ICY 200 OK\r\nContent-Length: 2\r\n\r\n{}"),
        bytes("an empty line", "\r\n\r\n"),
        bytes("a NUL in the head", ok + std::string("X: a\0b\r\nContent-Length: 2\r\n\r\n{}", 31)),
    };
}

}  // namespace larkspan::campaign
