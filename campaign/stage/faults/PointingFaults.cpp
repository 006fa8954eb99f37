#include "stage/Endings.h"

namespace larkspan::campaign {

namespace {

/// A good answer with a header that points to another origin.
Fault pointing(const std::string& name, std::function<std::string(const Turn&)> header)
{
    return {"a good answer with " + name, succeeds,
        [header = std::move(header)](Turn& turn) { turn.peer.write(written(turn.answer(), header(turn) + "\r\n")); }};
}

/// A redirect within the service with such a header besides.
Fault pointingRedirect(const std::string& name, std::function<std::string(const Turn&)> header)
{
    return {"a redirect with " + name, succeeds, [header = std::move(header)](Turn& turn) {
                if (turn.isMoved()) {
                    turn.peer.write(written(turn.answer()));
                    return;
                }
                simulator::Reply reply;
                reply.status = 307;
                turn.peer.write(written(reply, "Location: " + movedTo(turn.target()) + "\r\n" + header(turn) + "\r\n"));
            }};
}

}  // namespace

std::vector<Fault> pointingFaults()
{
    using Header = std::function<std::string(const Turn&)>;
    const auto authority = [](const Turn& turn) { return turn.elsewhere.substr(turn.elsewhere.find("//") + 2); };
    const std::vector<std::pair<std::string, Header>> headers{
        {"a refresh", [](const Turn& turn) { return "Refresh: 0; url=" + turn.elsewhere + "/"; }},
        {"the location of its content", [](const Turn& turn) { return "Content-Location: " + turn.elsewhere + "/"; }},
        {"a link to load ahead",
            [](const Turn& turn) {
                return "Link: <" + turn.elsewhere + "/>; rel=preload, <" + turn.elsewhere + ">; rel=next";
            }},
        {"another service",
            [=](const Turn& turn) { return "Alt-Svc: h2=\"" + authority(turn) + "\"; ma=86400; persist=1"; }},
        {"a cookie", [](const Turn&) { return std::string("Set-Cookie: key=1; Domain=localhost; Path=/"); }},
        {"another protocol", [](const Turn&) { return std::string("Upgrade: h2c, websocket\r\nConnection: Upgrade"); }},
        {"a place for reports",
            [](const Turn& turn) {
                return "Reporting-Endpoints: all=\"" + turn.elsewhere
                    + "/\"\r\nNEL: {\"report_to\":\"all\",\"max_age\":9,\"success_fraction\":1}";
            }},
        {"a policy", [](const Turn& turn) { return "Content-Security-Policy: report-uri " + turn.elsewhere + "/"; }},
        {"an origin that may read it",
            [](const Turn& turn) {
                return "Access-Control-Allow-Origin: " + turn.elsewhere + "\r\nAccess-Control-Allow-Credentials: true";
            }},
        {"another proxy",
            [](const Turn& turn) { return "Proxy: " + turn.elsewhere + "\r\nX-Forwarded-Host: elsewhere"; }},
    };
    std::vector<Fault> all;
    for (const auto& [name, header] : headers) all.push_back(pointing(name, header));
    for (const auto& [name, header] : headers) all.push_back(pointingRedirect(name, header));
    all.push_back(pointing("a location", [](const Turn& turn) { return "Location: " + turn.elsewhere + "/"; }));
    return all;
}

}  // namespace larkspan::campaign
