#include "inprocess/InProcessTransport.h"

#include <functional>
#include <map>
#include <mutex>
#include <utility>

#include "inprocess/Arrival.h"
#include "inprocess/Redirection.h"

namespace larkspan::simulator {

using platform::HttpRequest;
using platform::URLError;

/// The requests under way. Posted work and stop callbacks refer to it weakly, so that it ends with the transport.
class InProcessTransport::Exchanges : public std::enable_shared_from_this<Exchanges> {
public:
    using Complete = support::UniqueFunction<void(Result)>;

    Exchanges(Service& service, platform::Executor& executor, Delays& delays)
        : service_(service)
        , executor_(executor)
        , delays_(delays)
    {
    }

    void begin(HttpRequest request, const std::stop_token& stop, Complete complete)
    {
        const int id = enter(std::move(complete));
        if (stop.stop_requested()) {
            finishLater(id, URLError::Code::cancelled);
            return;
        }
        // Not under the lock: the callback may run at once, here or on another thread.
        auto stopping = std::make_unique<StopCallback>(stop, [self = weak_from_this(), id] {
            if (const auto exchanges = self.lock()) exchanges->finishLater(id, URLError::Code::cancelled);
        });
        const std::scoped_lock lock(mutex_);
        underWay_[id].stopping = std::move(stopping);
        executor_.post([self = weak_from_this(), id, request = std::move(request)] {
            if (const auto exchanges = self.lock()) exchanges->carryOut(id, request);
        });
    }

    void failConnections(std::optional<URLError::Code> code)
    {
        const std::scoped_lock lock(mutex_);
        connectionFailure_ = code;
    }

    void drop()
    {
        // Destroyed after the lock is released, since dropped exchanges unwind tasks that may do anything.
        std::map<int, Exchange> dropped;
        const std::scoped_lock lock(mutex_);
        dropped.swap(underWay_);
    }

private:
    using StopCallback = std::stop_callback<std::function<void()>>;

    struct Exchange {
        Complete complete;
        std::unique_ptr<StopCallback> stopping;
    };

    int enter(Complete complete)
    {
        const std::scoped_lock lock(mutex_);
        const int id = ++lastId_;
        underWay_[id].complete = std::move(complete);
        return id;
    }

    void carryOut(int id, const HttpRequest& request)
    {
        {
            const std::scoped_lock lock(mutex_);
            if (!underWay_.contains(id)) return;
            if (connectionFailure_) {
                finishLater(id, *connectionFailure_);
                return;
            }
        }
        auto [after, result] = arrival(answerWithRedirects(service_, request), request.timeout);
        if (after.count() == 0) {
            finish(id, std::move(result));
            return;
        }
        delays_.after(after, [self = weak_from_this(), id, result = std::move(result)]() mutable {
            if (const auto exchanges = self.lock()) exchanges->finishLater(id, std::move(result));
        });
    }

    void finishLater(int id, Result result)
    {
        executor_.post([self = weak_from_this(), id, result = std::move(result)]() mutable {
            if (const auto exchanges = self.lock()) exchanges->finish(id, std::move(result));
        });
    }

    void finish(int id, Result result)
    {
        Exchange ended;
        {
            const std::scoped_lock lock(mutex_);
            const auto found = underWay_.find(id);
            if (found == underWay_.end()) return;
            ended = std::move(found->second);
            underWay_.erase(found);
        }
        ended.complete(std::move(result));
    }

    Service& service_;
    platform::Executor& executor_;
    Delays& delays_;
    std::mutex mutex_;
    std::map<int, Exchange> underWay_;
    std::optional<URLError::Code> connectionFailure_;
    int lastId_ = 0;
};

InProcessTransport::InProcessTransport(Service& service, platform::Executor& executor, Delays& delays)
    : exchanges_(std::make_shared<Exchanges>(service, executor, delays))
{
}

InProcessTransport::~InProcessTransport()
{
    exchanges_->drop();
}

void InProcessTransport::send(HttpRequest request, std::stop_token stop, support::UniqueFunction<void(Result)> complete)
{
    exchanges_->begin(std::move(request), stop, std::move(complete));
}

void InProcessTransport::failConnections(std::optional<URLError::Code> code)
{
    exchanges_->failConnections(code);
}

}  // namespace larkspan::simulator
