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

/// A request on its way into a handler.
struct Call {
    const Request& request;
    Account& account;
    /// What stood in the path where the route has a "*", in order.
    std::vector<std::string> wildcards;
    support::Time now;
};

/// What a handler answers: a status and the result, which is put into its shape later. A status outside 200 to 299
/// carries its result as it is.
struct Answer {
    int status = 200;
    std::optional<Json> result = {};
    Headers headers = {};
    /// The key under which a list may come in place of "data"; empty where the service knows none for it.
    std::string_view envelope = {};
    /// Whether the result comes as it is, whatever shape was asked for.
    bool isWhole = false;
};

/// The answer to a request that did what it asked for.
inline Answer ok(Json result)
{
    return {200, std::move(result)};
}

using Handler = std::function<Answer(const Call&)>;

/// From method and path to the handler.
class Router {
public:
    /// In `pattern` a "*" stands for any one segment of the path that is not empty.
    void add(std::string method, std::string_view pattern, Handler handler);

    /// 404 where no route has the path, 405 where none of those has the method.
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
