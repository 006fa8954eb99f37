#include "api/RequestEngine.h"

#include <utility>
#include <variant>

#include "api/APIError.h"
#include "api/APIKey.h"
#include "api/KeychainHelper.h"
#include "api/RequestSending.h"
#include "api/RequestURL.h"
#include "support/Completion.h"

namespace larkspan::api {

using platform::HttpRequest;
using platform::HttpResponse;
using platform::HttpTransport;
using platform::URLError;
using support::Task;

namespace {

void authenticate(HttpRequest& request, const std::string& key)
{
    if (!canStandInHeader(key)) throw URLError(URLError::Code::userAuthenticationRequired);
    request.headers.emplace_back("Authorization", "Bearer " + key);
    request.headers.emplace_back("X-API-Key", key);
}

}  // namespace

RequestEngine::RequestEngine(Ports ports, const std::string& serviceHost)
    : baseURL_("https://" + serviceHost + "/user/api/v1")
    , featureBaseURL_("https://" + serviceHost + "/user/api")
    , ports_(ports)
{
}

Task<void> RequestEngine::sendForNothing(Call call)
{
    return support::on(ports_.executor, ignoreAnswer(std::move(call)));
}

Task<std::string> RequestEngine::sendRawRequest(Base base, std::string path, std::stop_token stop)
{
    Call call{.base = base, .path = std::move(path)};
    return support::on(ports_.executor, send(std::move(call), std::move(stop)));
}

Task<void> RequestEngine::validateAPIKey(std::string key, std::stop_token stop)
{
    return support::on(ports_.executor, validate(std::move(key), std::move(stop)));
}

Task<void> RequestEngine::validate(std::string key, std::stop_token stop)
{
    auto request = preparedRequest({.path = "status-pages"});
    authenticate(request, key);
    auto exchanging = exchange(std::move(request), std::move(stop));
    co_await std::move(exchanging);
}

Task<void> RequestEngine::ignoreAnswer(Call call)
{
    auto sending = sendAndDecode<model::EmptyResponse>(std::move(call), {});
    co_await std::move(sending);
}

Task<std::string> RequestEngine::send(Call call, std::stop_token stop)
{
    auto request = preparedRequest(call);
    authenticate(request, storedKey());
    if (call.body) {
        request.body = std::move(call.body);
        request.headers.emplace_back("Content-Type", "application/json");
    }
    auto exchanging = exchange(std::move(request), std::move(stop));
    co_return co_await std::move(exchanging);
}

Task<std::string> RequestEngine::exchange(HttpRequest request, std::stop_token stop)
{
    auto send = [this, request = std::move(request), stop](support::Completion<HttpTransport::Result> answer) mutable {
        auto complete = [answer = std::move(answer)](HttpTransport::Result result) mutable {
            answer.giveInThisTurn(support::Outcome<HttpTransport::Result>::success(std::move(result)));
        };
        ports_.transport.send(std::move(request), std::move(stop), std::move(complete));
    };
    auto sending = support::completion<HttpTransport::Result>(std::move(send));
    auto result = co_await std::move(sending);

    if (const auto* failure = std::get_if<URLError::Code>(&result)) throw URLError(*failure);
    auto& response = std::get<HttpResponse>(result);
    if (!response.status) throw APIError::invalidResponse();
    if (*response.status < 200 || *response.status > 299) throw APIError::httpStatus(*response.status);
    co_return std::move(response.body);
}

HttpRequest RequestEngine::preparedRequest(const Call& call) const
{
    const auto& base = call.base == Base::feature ? featureBaseURL_ : baseURL_;
    return {.method = call.method, .url = requestURL(base, call.path), .headers = {}, .body = {}};
}

std::string RequestEngine::storedKey() const
{
    auto key = KeychainHelper::readAPIKey(ports_.credentials);
    if (!key || key->empty()) throw APIError::missingAPIKey();
    return std::move(*key);
}

}  // namespace larkspan::api
