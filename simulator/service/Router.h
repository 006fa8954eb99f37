#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "service/Exchange.h"
#include "support/Time.h"
#include "json/Json.h"

namespace larkspan::simulator {

struct Account;

/// A request as a handler receives it.
struct Call {
    const Request& request;
    Account& account;
    /// The segments of the path that match the "*" of the route, in order.
    std::vector<std::string> wildcards;
    support::Time now;
};

/// The answer of a handler: a status and the result, which is wrapped later. With a status outside 200 to 299 the
/// result is not wrapped.
struct Answer {
    int status = 200;
    std::optional<Json> result = {};
    Headers headers = {};
    /// The key that a list may have instead of "data"; empty if the service has none for it.
    std::string_view envelope = {};
    /// Whether the result is never wrapped, whatever shape was requested.
    bool isWhole = false;
};

/// The answer to a successful request.
inline Answer ok(Json result)
{
    return {200, std::move(result)};
}

using Handler = std::function<Answer(const Call&)>;

/// Finds the handler for a method and a path.
class Router {
public:
    /// In `pattern`, "*" matches any one segment of the path that is not empty.
    void add(std::string method, std::string_view pattern, Handler handler);

    /// Answers 404 if no route has the path, 405 if none of those has the method.
    Answer route(const Request& request, Account& account, support::Time now) const;

private:
    struct Route {
        std::string method;
        std::vector<std::string> segments;
        Handler handler;
    };

    std::vector<Route> routes_;
};

}  // namespace larkspan::simulator
