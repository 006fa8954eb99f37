#pragma once

#include <chrono>
#include <optional>
#include <stop_token>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/URLError.h"
#include "support/UniqueFunction.h"

namespace larkspan::platform {

struct HttpRequest {
    std::string method;
    std::string url;
    std::vector<std::pair<std::string, std::string>> headers;
    std::optional<std::string> body;
    std::chrono::milliseconds timeout{60'000};

    bool operator==(const HttpRequest&) const = default;
};

struct HttpResponse {
    /// Absent if the answer was not HTTP.
    std::optional<int> status;
    std::string body;
};

/// Sends requests to the service and nowhere else. Called on the client's executor, on which completions run too.
class HttpTransport {
public:
    using Result = std::variant<HttpResponse, URLError::Code>;

    virtual ~HttpTransport() = default;

    /// Sends `request` and calls `complete` once, in a later turn of the client's executor. A write is sent once,
    /// whatever happens to the connection. Redirects are followed within the origin of the URL only, and for a write
    /// only where the status says how to go on (303, 307, 308); any other is returned as its status code. A stop ends
    /// the request with `cancelled`. A destroyed transport does not call `complete`.
    virtual void send(HttpRequest request, std::stop_token stop, support::UniqueFunction<void(Result)> complete) = 0;
};

}  // namespace larkspan::platform
