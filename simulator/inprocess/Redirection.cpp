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

bool isRedirect(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

std::optional<std::string> targetWithin(const std::string& origin, const Reply& reply)
{
    if (!isRedirect(reply.status) || reply.delivery.ending != Delivery::Ending::whole) return std::nullopt;
    for (const auto& [name, value] : reply.headers) {
        if (name != "Location") continue;
        if (value.starts_with('/') && !value.starts_with("//")) return value;
        auto address = addressOf(value);
        if (address.origin == origin) return std::move(address.target);
    }
    return std::nullopt;
}

}  // namespace

Reply answerWithRedirects(Service& service, const platform::HttpRequest& request)
{
    constexpr int mostRedirects = 10;
    auto [origin, target] = addressOf(request.url);
    Request sent{request.method, std::move(target), request.headers, request.body.value_or(std::string())};

    auto reply = service.answer(sent);
    std::chrono::milliseconds waited{0};
    for (int redirects = 0; request.method == "GET" && redirects < mostRedirects; ++redirects) {
        auto next = targetWithin(origin, reply);
        if (!next) break;
        waited += reply.delivery.delay;
        sent.target = std::move(*next);
        reply = service.answer(sent);
    }
    reply.delivery.delay += waited;
    return reply;
}

}  // namespace larkspan::simulator
