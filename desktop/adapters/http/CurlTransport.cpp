#include "adapters/http/CurlTransport.h"

#include <future>
#include <utility>

#include "adapters/http/TransportOperations.h"

namespace larkspan::adapters {

CurlTransport::CurlTransport(ClientLoop& loop, TransportSettings settings)
    : loop_(loop)
    , operations_(std::make_shared<TransportOperations>(loop, std::move(settings)))
{
}

CurlTransport::~CurlTransport()
{
    if (!isStopped_) stop();
}

void CurlTransport::stop()
{
    isStopped_ = true;
    if (loop_.isOnItsThread()) {
        operations_->stop();
        return;
    }

    std::promise<void> stopped;
    auto isStopped = stopped.get_future();
    loop_.post([operations = operations_, stopped = std::move(stopped)]() mutable {
        operations->stop();
        operations.reset();
        stopped.set_value();
    });
    isStopped.wait();
}

void CurlTransport::send(
    platform::HttpRequest request, std::stop_token stop, support::UniqueFunction<void(Result)> complete)
{
    if (loop_.isOnItsThread()) return operations_->begin(std::move(request), std::move(stop), std::move(complete));
    loop_.post([operations = std::weak_ptr(operations_), request = std::move(request), stop = std::move(stop),
                   complete = std::move(complete)]() mutable {
        if (const auto alive = operations.lock())
            alive->begin(std::move(request), std::move(stop), std::move(complete));
    });
}

}  // namespace larkspan::adapters
