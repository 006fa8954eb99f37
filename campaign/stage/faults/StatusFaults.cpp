#include "stage/Endings.h"

namespace larkspan::campaign {

namespace {

bool hasNoBody(int code)
{
    return code == 204 || code == 304;
}

/// The status in place of the answer's own. A failure comes before the service has done anything, and says why.
Fault status(int code, const std::string& name = {}, const std::string& moreHeaders = {})
{
    const bool isSuccess = code >= 200 && code <= 299;
    const auto ending = endsAsStatus(code, !hasNoBody(code));
    return {"status " + std::to_string(code) + name, ending, [=](Turn& turn) {
                simulator::Reply reply;
                if (isSuccess || code >= 500) reply = turn.answer();
                reply.status = code;
                reply.body = isSuccess ? bodyOf(reply) : R"({"data":[],"error":"Something went wrong"})";
                if (hasNoBody(code)) reply.body.clear();
                turn.peer.write(written(reply, moreHeaders));
            }};
}

}  // namespace

std::vector<Fault> statusFaults()
{
    std::vector<Fault> all;
    for (const int code : {200, 201, 202, 203, 204, 205, 206, 226, 299}) all.push_back(status(code));
    for (const int code : {300, 304, 305, 306, 399}) all.push_back(status(code));
    for (const int code : {400, 401, 402, 403, 404, 405, 406, 407, 408, 409, 410, 411, 412, 413, 414, 415, 416, 417,
             418, 421, 422, 423, 424, 425, 426, 428, 429, 431, 451, 499})
        all.push_back(status(code));
    for (const int code : {500, 501, 502, 503, 504, 505, 507, 508, 510, 511, 520, 599}) all.push_back(status(code));
    for (const int code : {600, 777, 999}) all.push_back(status(code));

    all.push_back(status(401, " that asks for a password", "WWW-Authenticate: Basic realm=\"x\"\r\n"));
    all.push_back(status(401, " that asks for another kind of proof", "WWW-Authenticate: Negotiate\r\n"));
    all.push_back(status(407, " of a proxy", "Proxy-Authenticate: Basic realm=\"x\"\r\n"));
    all.push_back(status(408, " that closes", "Connection: close\r\n"));
    all.push_back(status(417, " about what was not asked"));
    all.push_back(status(429, " with a time to try again", "Retry-After: 0\r\n"));
    all.push_back(status(503, " with a time to try again", "Retry-After: 0\r\n"));
    return all;
}

}  // namespace larkspan::campaign
