#pragma once

#include <deque>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/Executor.h"
#include "platform/HttpTransport.h"

namespace larkspan::fakes {

/// A transport that records requests and answers them as the test says: from a script by URL, or by hand.
class FakeTransport final : public platform::HttpTransport {
public:
    struct Pending {
        platform::HttpRequest request;
        std::stop_token stop;
        support::UniqueFunction<void(Result)> complete;
    };

    explicit FakeTransport(platform::Executor& executor)
        : executor_(executor)
    {
    }

    void send(
        platform::HttpRequest request, std::stop_token stop, support::UniqueFunction<void(Result)> complete) override
    {
        requests.push_back(request);
        const auto scripted = answers_.find(request.url);
        if (scripted == answers_.end()) {
            pending.push_back({std::move(request), std::move(stop), std::move(complete)});
            return;
        }
        executor_.post([result = scripted->second, complete = std::move(complete)]() mutable { complete(result); });
    }

    /// Answers each later request for `url` with `result`; without a script, requests wait for `answer`.
    void script(const std::string& url, Result result) { answers_.insert_or_assign(url, std::move(result)); }
    void script(const std::string& url, int status, std::string body)
    {
        script(url, platform::HttpResponse{.status = status, .body = std::move(body)});
    }

    /// Makes later requests for `url` wait again.
    void forget(const std::string& url) { answers_.erase(url); }

    /// Completes the oldest waiting request.
    void answer(Result result)
    {
        if (pending.empty()) throw std::logic_error("no request is waiting");
        auto oldest = std::move(pending.front());
        pending.pop_front();
        oldest.complete(std::move(result));
    }

    std::vector<platform::HttpRequest> requests;
    std::deque<Pending> pending;

private:
    platform::Executor& executor_;
    std::map<std::string, Result> answers_;
};

}  // namespace larkspan::fakes
