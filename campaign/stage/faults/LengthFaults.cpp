#include <chrono>
#include <thread>

#include "server/Packing.h"
#include "stage/Client.h"
#include "stage/Endings.h"

namespace larkspan::campaign {

using namespace std::chrono_literals;

namespace {

constexpr auto giant = 4 * Client::largestBody;
const std::string forged = R"([{"id":"forged","name":"forged"}])";

/// Answers with these headers and the body that `spoiled` makes of the true one; then keeps the connection.
Fault headers(const std::string& name, Ending ending,
    std::function<std::string(const std::string& body)> headersAndBody, void (adapters::Conversation::*end)() = nullptr)
{
    return {name, std::move(ending), [headersAndBody = std::move(headersAndBody), end](Turn& turn) {
                turn.peer.write("HTTP/1.1 200 OK\r\n" + headersAndBody(bodyOf(turn.answer())));
                if (end) (turn.peer.*end)();
            }};
}

std::string length(std::size_t bytes)
{
    return "Content-Length: " + std::to_string(bytes) + "\r\n";
}

std::string chunk(const std::string& text)
{
    constexpr auto digits = "0123456789abcdef";
    std::string size;
    for (auto left = text.size(); left > 0; left /= 16) size.insert(size.begin(), digits[left % 16]);
    return size + "\r\n" + text + "\r\n";
}

std::string packedWith(const std::string& coding, const std::string& body)
{
    return "Content-Encoding: " + coding + "\r\n" + length(body.size()) + "\r\n" + body;
}

std::vector<Fault> lies()
{
    const auto more = [](const std::string& body) { return length(body.size() + 10) + "\r\n" + body; };
    return {
        headers("a length beyond the body, kept open", endsWith(timedOut), more),
        headers("a length beyond the body, closed", endsWith(connectionLost), more, &adapters::Conversation::close),
        headers("a length short of the body", cannotRead(noJSON),
            [](const std::string& body) { return length(body.size() - 3) + "\r\n" + body; }),
        headers("a length that is no number", endsWith(notUnderstood),
            [](const std::string& body) { return "Content-Length: many\r\n\r\n" + body; }),
        headers("a length below zero", endsWith(notUnderstood),
            [](const std::string& body) { return "Content-Length: -5\r\n\r\n" + body; }),
        headers("two lengths", endsWith(notUnderstood),
            [](const std::string& body) { return length(body.size()) + length(3) + "\r\n" + body; }),
        headers("a length besides chunks", succeeds,
            [](const std::string& body) {
                return length(3) + "Transfer-Encoding: chunked\r\n\r\n" + chunk(body) + "0\r\n\r\n";
            }),
        headers("a chunk of no size", endsWith(connectionLost),
            [](const std::string& body) { return "Transfer-Encoding: chunked\r\n\r\nzz\r\n" + body + "\r\n"; }),
        headers("a chunk past all sizes", endsWith(connectionLost),
            [](const std::string& body) {
                return "Transfer-Encoding: chunked\r\n\r\n" + std::string(17, 'f') + "\r\n" + body + "\r\n";
            }),
        headers("chunks whose trailer is a head", succeeds,
            [](const std::string& body) {
                return "Transfer-Encoding: chunked\r\n\r\n" + chunk(body) + "0\r\nContent-Length: 7\r\n\r\n";
            }),
    };
}

std::vector<Fault> giants()
{
    return {
        headers("a giant body", endsWith(tooLarge),
            [](const std::string&) { return length(giant) + "\r\n[" + std::string(giant - 1, ' '); }),
        headers("a giant body of chunks", endsWith(tooLarge),
            [](const std::string&) { return "Transfer-Encoding: chunked\r\n\r\n" + chunk(std::string(giant, ' ')); }),
        headers("a length of a terabyte", endsWith(tooLarge),
            [](const std::string&) { return "Content-Length: 1099511627776\r\n\r\n["; }),
        headers("a length past all numbers", endsWith(tooLarge),
            [](const std::string&) { return "Content-Length: 99999999999999999999999\r\n\r\n["; }),
        headers("a packed giant", endsWith(tooLarge),
            [packed = simulator::packed("[", giant)](const std::string&) { return packedWith("gzip", packed); }),
        headers("a giant packed twice", endsWith(tooLarge),
            [packed = simulator::packed(simulator::packed("[", 32 * giant), 0)](
                const std::string&) { return packedWith("gzip, gzip", packed); }),
        headers("a packing that is none", endsWith(notUnderstood),
            [](const std::string& body) { return packedWith("gzip", body); }),
        headers("a packing cut short", cannotRead(noJSON),
            [](const std::string& body) {
                const auto packed = simulator::packed(body, 0);
                return packedWith("gzip", packed.substr(0, packed.size() / 2));
            }),
        headers("a packing unknown here", endsWith(notUnderstood),
            [](const std::string& body) { return packedWith("magic", body); }),
        headers("a chain of a hundred packings", endsWith(notUnderstood),
            [](const std::string& body) {
                std::string chain = "gzip";
                for (int link = 1; link < 100; ++link) chain += ", gzip";
                return packedWith(chain, body);
            }),
    };
}

/// The client must neither take the second answer for this request nor for the next one.
Fault secondAnswer(const std::string& name, std::chrono::milliseconds later, const std::string& secondStatus)
{
    Fault fault{name, succeeds};
    fault.afterwards = 10 * later;
    fault.answer = [later, secondStatus](Turn& turn) {
        const auto second = "HTTP/1.1 " + secondStatus + "\r\n" + length(forged.size()) + "\r\n" + forged;
        const auto first = written(turn.answer());
        if (later.count() == 0) {
            turn.peer.write(first + second);
            return;
        }
        turn.peer.write(first);
        std::this_thread::sleep_for(later);
        turn.peer.write(second);
    };
    return fault;
}

}  // namespace

std::vector<Fault> lengthFaults()
{
    auto all = lies();
    for (const auto& fault : giants()) all.push_back(fault);
    all.push_back(secondAnswer("two answers at once", 0ms, "200 OK"));
    all.push_back(secondAnswer("a second answer later", 5ms, "200 OK"));
    all.push_back(secondAnswer("a second answer later, a failure", 5ms, "500 Broken"));
    return all;
}

}  // namespace larkspan::campaign
