#include "inprocess/Redirection.h"

#include <optional>
#include <utility>

namespace larkspan::simulator {

namespace {

struct Address {
    std::string origin;
    std::string target;
};

Address addressOf(std::string_view url)
{
    const auto schemeEnd = url.find("://");
    const auto slash = schemeEnd == std::string_view::npos ? schemeEnd : url.find('/', schemeEnd + 3);
    if (slash == std::string_view::npos) return {std::string(url), "/"};
    return {std::string(url.substr(0, slash)), std::string(url.substr(slash))};
}

std::optional<std::string> targetWithin(const std::string& origin, const Reply& reply)
{
    for (const auto& [name, value] : reply.headers) {
        if (name != "Location") continue;
        if (value.starts_with('/') && !value.starts_with("//")) return value;
        auto address = addressOf(value);
        if (address.origin == origin) return std::move(address.target);
    }
    return std::nullopt;
}

/// The request that follows a redirect; empty if the reply is the answer. A write is repeated only if the status says
/// that it has to be sent unchanged to the new place.
std::optional<Request> afterRedirect(const Request& request, const std::string& origin, const Reply& reply)
{
    const int status = reply.status;
    const bool isMovedAsItIs = status == 307 || status == 308;
    const bool isResultElsewhere = status == 303;
    const bool isMovedRead = (status == 301 || status == 302) && request.method == "GET";
    if (!isMovedAsItIs && !isResultElsewhere && !isMovedRead) return std::nullopt;
    if (reply.delivery.ending != Delivery::Ending::whole) return std::nullopt;

    auto target = targetWithin(origin, reply);
    if (!target) return std::nullopt;
    auto next = request;
    next.target = std::move(*target);
    if (isResultElsewhere) {
        next.method = "GET";
        next.body.clear();
    }
    return next;
}

}  // namespace

Reply answerWithRedirects(Service& service, const platform::HttpRequest& request)
{
    constexpr int mostRedirects = 10;
    auto [origin, target] = addressOf(request.url);
    Request sent{request.method, std::move(target), request.headers, request.body.value_or(std::string())};

    auto reply = service.answer(sent);
    std::chrono::milliseconds waited{0};
    for (int redirects = 0; redirects < mostRedirects; ++redirects) {
        auto next = afterRedirect(sent, origin, reply);
        if (!next) break;
        waited += reply.delivery.delay;
        sent = std::move(*next);
        reply = service.answer(sent);
    }
    reply.delivery.delay += waited;
    return reply;
}

}  // namespace larkspan::simulator
