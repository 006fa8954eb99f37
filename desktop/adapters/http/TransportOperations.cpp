#include "adapters/http/TransportOperations.h"

#include <algorithm>
#include <utility>

#include "adapters/http/EnvironmentProxies.h"
#include "adapters/http/RequestOptions.h"

namespace larkspan::adapters {

TransportOperations::TransportOperations(ClientLoop& loop, TransportSettings settings)
    : loop_(loop)
    , settings_(std::move(settings))
{
}

void TransportOperations::begin(platform::HttpRequest request, std::stop_token stop, Complete complete)
{
    if (isStopped_) return;

    const auto id = ++lastId_;
    auto& operation = operations_[id];
    operation.request = std::move(request);
    operation.complete = std::move(complete);
    if (stop.stop_requested()) return endingLater(id, Code::cancelled)();
    if (!canBeSent(operation.request)) return endingLater(id, Code::unknown)();

    const auto end = ClientLoop::Clock::now() + operation.request.timeout;
    operation.deadline = loop_.at(end, [this, id] { finish(id, Code::timedOut); });
    operation.onStop.emplace(std::move(stop), endingLater(id, Code::cancelled));
    findProxy(id);
}

TransportOperations::Ending TransportOperations::endingLater(Id id, Code code)
{
    return {loop_, weak_from_this(), id, code};
}

void TransportOperations::Ending::operator()() const
{
    loop.post([requests = operations, ended = id, failure = code] {
        if (const auto alive = requests.lock()) alive->finish(ended, failure);
    });
}

void TransportOperations::stop()
{
    isStopped_ = true;
    operations_.clear();
}

void TransportOperations::findProxy(Id id)
{
    // libcurl reads the environment itself.
    if (!settings_.proxies || environmentNamesProxy()) return awaitTurn(id);

    auto answer = [operations = weak_from_this(), id](std::string proxy) {
        if (const auto alive = operations.lock()) alive->bringProxy(id, std::move(proxy));
    };
    settings_.proxies->findProxy(operations_.at(id).request.url, std::move(answer));
}

void TransportOperations::bringProxy(Id id, std::string proxy)
{
    // The desktop may answer after the program has begun to end and the loop is gone.
    if (isStopped_) return;
    loop_.post([operations = weak_from_this(), id, proxy = std::move(proxy)]() mutable {
        if (const auto alive = operations.lock()) alive->takeProxy(id, std::move(proxy));
    });
}

void TransportOperations::takeProxy(Id id, std::string proxy)
{
    const auto found = operations_.find(id);
    if (found == operations_.end()) return;
    found->second.proxy = std::move(proxy);
    awaitTurn(id);
}

void TransportOperations::awaitTurn(Id id)
{
    auto& operation = operations_.at(id);
    if (!isRead(operation.request) || !isReading()) return exchange(id);
    operation.endOfPatience = loop_.at(ClientLoop::Clock::now() + settings_.patience, [this, id] { exchange(id); });
}

bool TransportOperations::isReading() const
{
    return std::ranges::any_of(
        operations_, [](const auto& entry) { return entry.second.exchange && isRead(entry.second.request); });
}

void TransportOperations::exchange(Id id)
{
    auto& operation = operations_.at(id);
    operation.endOfPatience.reset();
    operation.exchange = std::make_unique<CurlExchange>(loop_, settings_, operation.request, operation.proxy,
        [this, id](Result result) { finish(id, std::move(result)); });
}

void TransportOperations::startNextRead()
{
    if (isReading()) return;
    const auto next
        = std::ranges::find_if(operations_, [](const auto& entry) { return entry.second.endOfPatience != nullptr; });
    if (next != operations_.end()) exchange(next->first);
}

void TransportOperations::finish(Id id, Result result)
{
    auto ended = operations_.extract(id);
    if (!ended) return;
    auto complete = std::move(ended.mapped().complete);
    ended = {};
    startNextRead();
    // The callback may destroy the transport.
    complete(std::move(result));
}

}  // namespace larkspan::adapters
