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
    if (loop_.isOnItsThread()) {
        operations_->dropAll();
        return;
    }

    std::promise<void> dropped;
    auto isDropped = dropped.get_future();
    loop_.post([operations = std::move(operations_), dropped = std::move(dropped)]() mutable {
        operations->dropAll();
        operations.reset();
        dropped.set_value();
    });
    isDropped.wait();
}

void CurlTransport::send(
    platform::HttpRequest request, std::stop_token stop, support::UniqueFunction<void(Result)> complete)
{
    loop_.post([operations = std::weak_ptr(operations_), request = std::move(request), stop = std::move(stop),
                   complete = std::move(complete)]() mutable {
        if (const auto alive = operations.lock())
            alive->begin(std::move(request), std::move(stop), std::move(complete));
    });
}

}  // namespace larkspan::adapters
