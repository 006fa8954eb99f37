#include "stage/Client.h"

#include <algorithm>
#include <cstdlib>
#include <future>
#include <utility>

#include "api/KeychainHelper.h"
#include "service/WallClock.h"
#include "stage/Authorities.h"
#include "support/LocalizedError.h"

namespace larkspan::campaign {

using namespace std::chrono_literals;

namespace {

using Ended = std::shared_ptr<std::promise<std::string>>;

support::Task<void> observed(support::Task<void> operation, Ended ended)
{
    std::string sentence;
    try {
        co_await std::move(operation);
    } catch (...) {
        sentence = support::localizedDescription(std::current_exception());
    }
    ended->set_value(sentence);
}

}  // namespace

void useNoProxy()
{
    for (const auto* name : {"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY", "no_proxy", "NO_PROXY"})
        ::unsetenv(name);
}

void HastyTransport::send(
    platform::HttpRequest request, std::stop_token stop, support::UniqueFunction<void(Result)> complete)
{
    request.timeout = std::min<std::chrono::milliseconds>(request.timeout, 3s);
    transport_.send(std::move(request), std::move(stop), std::move(complete));
}

Client::Client(int port)
    : transport_(*loop_, settings())
    , hasty_(transport_)
    , api_({*loop_, hasty_, store_, simulator::wallClock()}, "127.0.0.1:" + std::to_string(port))
{
    store_.add(api::KeychainHelper::item, key);
}

adapters::TransportSettings Client::settings()
{
    adapters::TransportSettings settings;
    settings.certificateBundle = bundle();
    settings.idleTimeout = 1'500ms;
    settings.largestBody = largestBody;
    return settings;
}

void Client::stop()
{
    transport_.stop();
    loop_.reset();
}

std::string Client::run(support::Task<void> operation)
{
    const auto ended = std::make_shared<std::promise<std::string>>();
    auto sentence = ended->get_future();
    support::start(*loop_, observed(std::move(operation), ended));
    if (sentence.wait_for(30s) != std::future_status::ready) return "the operation never ended";
    return sentence.get();
}

}  // namespace larkspan::campaign
