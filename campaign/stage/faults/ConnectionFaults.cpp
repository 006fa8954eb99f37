#include <chrono>
#include <thread>

#include "stage/Endings.h"

namespace larkspan::campaign {

using adapters::Conversation;
using adapters::FaultServer;
using namespace std::chrono_literals;

namespace {

/// The part of an answer that arrives before the connection ends.
struct Stage {
    std::string name;
    std::function<std::string(const std::string& body)> sent;
};

std::string half(const std::string& body)
{
    return body.substr(0, body.size() / 2);
}

std::vector<Stage> stages()
{
    const auto lengthOf = [](const std::string& body) { return "Content-Length: " + std::to_string(body.size()); };
    return {
        {"before the first byte", [](const std::string&) { return std::string(); }},
        {"in the status line", [](const std::string&) { return std::string("HTTP/1.1 2"); }},
        {"in the head", [](const std::string&) { return std::string("HTTP/1.1 200 OK\r\nContent-Le"); }},
        {"after the head",
            [lengthOf](const std::string& body) { return "HTTP/1.1 200 OK\r\n" + lengthOf(body) + "\r\n\r\n"; }},
        {"in the body",
            [lengthOf](
                const std::string& body) { return "HTTP/1.1 200 OK\r\n" + lengthOf(body) + "\r\n\r\n" + half(body); }},
        {"between chunks",
            [](const std::string&) {
                return std::string("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\n{\"a\r\n");
            }},
        {"in a body of unknown length", [](const std::string& body) { return "HTTP/1.1 200 OK\r\n\r\n" + half(body); }},
    };
}

std::function<void(Turn&)> sends(const Stage& stage, void (Conversation::*end)())
{
    return [sent = stage.sent, end](Turn& turn) {
        turn.peer.write(sent(bodyOf(turn.answer())));
        (turn.peer.*end)();
    };
}

Fault onKeptConnection(Fault fault)
{
    fault.name += ", on a kept connection";
    fault.isOnKeptConnection = true;
    return fault;
}

/// A read is sent again if its kept connection turns out to be closed; a write never is.
Fault onceOnKeptConnection(Fault fault)
{
    fault = onKeptConnection(std::move(fault));
    fault.name += ", once";
    fault.isOnce = true;
    fault.ending = onlyWritesEndWith(connectionLost);
    return fault;
}

std::vector<Fault> endings()
{
    std::vector<Fault> all;
    for (const auto& stage : stages()) {
        const bool seemsWhole = stage.name == "in a body of unknown length";
        all.push_back({"closed " + stage.name, seemsWhole ? cannotRead(noJSON) : endsWith(connectionLost),
            sends(stage, &Conversation::close)});
        all.push_back({"cut " + stage.name, endsWith(connectionLost), sends(stage, &Conversation::cut)});
        all.push_back({"reset " + stage.name, endsWith(connectionLost), sends(stage, &Conversation::reset)});
    }
    const auto fresh = all;
    for (const auto& fault : fresh) all.push_back(onKeptConnection(fault));
    for (std::size_t at = 0; at < 3; ++at) all.push_back(onceOnKeptConnection(fresh[at]));
    return all;
}

std::vector<Fault> silences()
{
    std::vector<Fault> all;
    for (const auto& stage : stages())
        all.push_back({"silence " + stage.name, endsWith(timedOut), sends(stage, &Conversation::hang)});
    all.push_back({"a slow drip of the body", endsWith(timedOut), [](Turn& turn) {
                       turn.answer();
                       turn.peer.write("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n{");
                       while (turn.peer.write(" ")) std::this_thread::sleep_for(50ms);
                   }});
    all.push_back({"a slow drip of the head", endsWith(timedOut), [](Turn& turn) {
                       turn.answer();
                       turn.peer.write("HTTP/1.1 200 OK\r\nX-Slow: ");
                       while (turn.peer.write("x")) std::this_thread::sleep_for(50ms);
                   }});
    return all;
}

Fault greeted(const std::string& name, FaultServer::Greeting greeting, const std::string& sentence)
{
    Fault fault{name, endsWith(sentence)};
    fault.begin = [greeting](FaultServer& server) { server.greet(greeting); };
    fault.end = [](FaultServer& server) { server.greet(FaultServer::Greeting::handshake); };
    return fault;
}

}  // namespace

std::vector<Fault> connectionFaults()
{
    using Greeting = FaultServer::Greeting;
    auto all = endings();
    for (const auto& fault : silences()) all.push_back(fault);

    Fault refused{"refused", endsWith(notReached)};
    refused.begin = [](FaultServer& server) { server.stopListening(); };
    refused.end = [](FaultServer& server) { server.listenAgain(); };
    all.push_back(refused);
    all.push_back(greeted("silence in place of TLS", Greeting::silence, timedOut));
    all.push_back(greeted("closed in place of TLS", Greeting::close, insecure));
    all.push_back(greeted("reset in place of TLS", Greeting::reset, insecure));
    all.push_back(greeted("plain text in place of TLS", Greeting::plainText, insecure));
    return all;
}

}  // namespace larkspan::campaign
