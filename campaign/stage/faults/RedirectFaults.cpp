#include "stage/Endings.h"

namespace larkspan::campaign {

namespace {

std::string afterScheme(const std::string& origin)
{
    return origin.substr(origin.find("//"));
}

std::string hostAndPort(const std::string& origin)
{
    return origin.substr(origin.find("//") + 2);
}

std::string portOf(const std::string& origin)
{
    return origin.substr(origin.rfind(':') + 1);
}

struct Place {
    std::string name;
    /// What `Location` says; the header is left out where it is absent.
    std::function<std::optional<std::string>(const Turn&)> location;
    bool isWithinOrigin = false;
};

std::vector<Place> placesWithin()
{
    return {
        {"to a path", [](const Turn& turn) { return movedTo(turn.target()); }, true},
        {"to a whole URL of the service", [](const Turn& turn) { return turn.here + movedTo(turn.target()); }, true},
        {"to the service's host without a scheme",
            [](const Turn& turn) { return afterScheme(turn.here) + movedTo(turn.target()); }, true},
    };
}

std::vector<Place> placesElsewhere()
{
    const auto target = [](const Turn& turn) { return movedTo(turn.target()); };
    return {
        {"to another port", [=](const Turn& turn) { return turn.elsewhere + target(turn); }},
        {"to plain HTTP", [=](const Turn& turn) { return turn.elsewhereInPlain + target(turn); }},
        {"to plain HTTP on the same port",
            [=](const Turn& turn) { return "http://" + hostAndPort(turn.here) + target(turn); }},
        {"to another host without a scheme",
            [=](const Turn& turn) { return afterScheme(turn.elsewhere) + target(turn); }},
        {"to another name of the service",
            [=](const Turn& turn) { return "https://localhost:" + portOf(turn.here) + target(turn); }},
        {"to another address of the service",
            [=](const Turn& turn) { return "https://127.0.0.2:" + portOf(turn.here) + target(turn); }},
        {"with a user who looks like the service",
            [=](const Turn& turn) { return "https://" + hostAndPort(turn.here) + "@" + hostAndPort(turn.elsewhere); }},
        {"with a user at the service",
            [=](const Turn& turn) { return "https://user:word@" + hostAndPort(turn.here) + target(turn); }},
        {"with backslashes", [=](const Turn& turn) { return "https:\\\\" + hostAndPort(turn.elsewhere) + "\\x"; }},
        {"to a host that begins like the service",
            [=](const Turn& turn) { return turn.here + ".invalid" + target(turn); }},
        {"to a file", [](const Turn&) { return "file:///etc/passwd"; }},
        {"to another scheme", [](const Turn& turn) { return "ftp://" + hostAndPort(turn.elsewhere) + "/"; }},
        {"to a script", [](const Turn&) { return "javascript:alert(1)"; }},
        {"to no URL", [](const Turn&) { return "https://"; }},
        {"to a port past all ports", [](const Turn&) { return "https://127.0.0.1:99999/"; }},
        {"to nowhere", [](const Turn&) { return std::nullopt; }},
    };
}

bool isFollowed(int code, const Turn& turn)
{
    const bool isRead = !turn.isWrite();
    return code == 303 || code == 307 || code == 308 || (isRead && (code == 301 || code == 302));
}

/// A redirect that the client follows leads to the true answer: of the moved order or, with 303, of the one that was
/// carried out before.
void redirect(Turn& turn, int code, const std::optional<std::string>& location)
{
    if (turn.isMoved()) {
        turn.peer.write(written(turn.answer()));
        return;
    }
    const bool isCarriedOut = code == 303 || !isFollowed(code, turn);
    if (turn.isWrite() && isCarriedOut) turn.answer();
    simulator::Reply reply;
    reply.status = code;
    turn.peer.write(written(reply, location ? "Location: " + *location + "\r\n" : ""));
}

Ending endingAt(int code, bool isWithinOrigin)
{
    if (!isWithinOrigin) return endsWith(statusSentence(code));
    if (code == 307 || code == 308) return succeeds;
    if (code == 301 || code == 302) return onlyWritesEndWith(statusSentence(code));
    return endsWith(statusSentence(code));
}

Fault redirectTo(int code, const Place& place)
{
    return {"redirect " + std::to_string(code) + " " + place.name, endingAt(code, place.isWithinOrigin),
        [code, location = place.location](Turn& turn) { redirect(turn, code, location(turn)); }};
}

/// After a 303, the answer to an order is read where it has gone: here, an object.
Fault resultElsewhere(const Place& place)
{
    const auto ending = [](const Operation& operation) {
        if (!operation.isWrite() || operation.answer == Answer::nothing) return std::string();
        return std::string("data: The key is missing");
    };
    return {"redirect 303 " + place.name, ending, [location = place.location](Turn& turn) {
                if (turn.isMoved() && turn.received.body.empty() && turn.target().ends_with("?done"))
                    return turn.peer.answer("200 OK", R"({"success":true})");
                auto to = location(turn);
                if (turn.isWrite() && to) *to += "?done";
                redirect(turn, 303, to);
            }};
}

Fault inCircles(int code)
{
    return {"redirect " + std::to_string(code) + " in circles", endsWith(statusSentence(code)), [code](Turn& turn) {
                simulator::Reply reply;
                reply.status = code;
                turn.peer.write(written(reply, "Location: " + movedTo(turn.target()) + "\r\n"));
            }};
}

}  // namespace

std::vector<Fault> redirectFaults()
{
    std::vector<Fault> all;
    for (const int code : {300, 301, 302, 305, 307, 308}) {
        for (const auto& place : placesWithin()) all.push_back(redirectTo(code, place));
    }
    for (const auto& place : placesWithin()) all.push_back(resultElsewhere(place));
    for (const int code : {302, 303, 307}) {
        for (const auto& place : placesElsewhere()) all.push_back(redirectTo(code, place));
    }
    for (const int code : {300, 301, 308}) all.push_back(redirectTo(code, placesElsewhere().front()));
    for (const int code : {302, 307}) all.push_back(inCircles(code));
    return all;
}

}  // namespace larkspan::campaign
