#include "service/Router.h"

#include <utility>

namespace larkspan::simulator {

namespace {

std::vector<std::string> segmentsOf(std::string_view path)
{
    std::vector<std::string> segments;
    while (!path.empty()) {
        path.remove_prefix(1);
        const auto length = std::min(path.find('/'), path.size());
        segments.emplace_back(path.substr(0, length));
        path.remove_prefix(length);
    }
    return segments;
}

std::optional<std::vector<std::string>> wildcards(
    const std::vector<std::string>& pattern, const std::vector<std::string>& path)
{
    if (pattern.size() != path.size()) return std::nullopt;
    std::vector<std::string> matched;
    for (std::size_t index = 0; index < path.size(); ++index) {
        if (pattern[index] == "*" && !path[index].empty()) {
            matched.push_back(path[index]);
        } else if (pattern[index] != path[index]) {
            return std::nullopt;
        }
    }
    return matched;
}

}  // namespace

void Router::add(std::string method, std::string_view pattern, Handler handler)
{
    routes_.push_back({std::move(method), segmentsOf(pattern), std::move(handler)});
}

Answer Router::route(const Request& request, Account& account, support::Time now) const
{
    const auto path = segmentsOf(request.path());
    std::string allowed;
    for (const auto& route : routes_) {
        auto matched = wildcards(route.segments, path);
        if (!matched) continue;
        if (route.method == request.method) return route.handler(Call{request, account, std::move(*matched), now});
        allowed += (allowed.empty() ? "" : ", ") + route.method;
    }
    if (allowed.empty()) return {404, Json::object({{"error", "Not found"}})};
    return {405, Json::object({{"error", "Method not allowed"}}), {{"Allow", allowed}}};
}

}  // namespace larkspan::simulator
