#include "TransportTest.h"

#include <cstdlib>
#include <memory>
#include <utility>

namespace larkspan::adapters {

const Authority& authority()
{
    static const Authority made;
    return made;
}

const Identity& identity()
{
    static const Identity made = authority().issue();
    return made;
}

HttpRequest request(std::string method, std::string url, std::optional<std::string> body)
{
    HttpRequest made;
    made.method = std::move(method);
    made.url = std::move(url);
    made.body = std::move(body);
    return made;
}

HttpRequest get(std::string url)
{
    return request("GET", std::move(url));
}

Transport::Transport()
{
    // The tests' servers are not behind the proxy of the person who runs the tests.
    for (const auto* name : {"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY", "no_proxy", "NO_PROXY"})
        unsetenv(name);
    settings.certificateBundle = authority().bundle();
}

CurlTransport& Transport::transport()
{
    if (!transport_) transport_.emplace(loop, settings);
    return *transport_;
}

std::future<Result> Transport::begin(HttpRequest sent, std::stop_token stop)
{
    auto promise = std::make_unique<std::promise<Result>>();
    auto future = promise->get_future();
    transport().send(std::move(sent), std::move(stop),
        [promise = std::move(promise)](Result result) { promise->set_value(std::move(result)); });
    return future;
}

Result Transport::send(HttpRequest sent, std::stop_token stop)
{
    auto future = begin(std::move(sent), std::move(stop));
    if (future.wait_for(std::chrono::seconds(60)) == std::future_status::ready) return future.get();
    ADD_FAILURE() << "the request never ended";
    return URLError::Code::unknown;
}

testing::Matcher<const Result&> answers(int status, const testing::Matcher<const std::string&>& body)
{
    return testing::VariantWith<HttpResponse>(testing::AllOf(
        testing::Field(&HttpResponse::status, testing::Optional(status)), testing::Field(&HttpResponse::body, body)));
}

testing::Matcher<const Result&> fails(URLError::Code code)
{
    return testing::VariantWith<URLError::Code>(code);
}

}  // namespace larkspan::adapters

namespace larkspan::platform {

void PrintTo(const HttpResponse& response, std::ostream* out)
{
    *out << "status " << response.status.value_or(0) << ", " << response.body.size() << " bytes: \""
         << response.body.substr(0, 80) << '"';
}

void PrintTo(URLError::Code code, std::ostream* out)
{
    *out << URLError(code).localizedDescription();
}

}  // namespace larkspan::platform
