#pragma once

#include <cstddef>
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
        post(std::move(complete), scripted->second);
    }

    /// Answers each later request for `url` with `result`; without a script, requests wait for `answer`.
    void script(const std::string& url, Result result) { answers_.insert_or_assign(url, std::move(result)); }
    void script(const std::string& url, int status, std::string body)
    {
        script(url, platform::HttpResponse{.status = status, .body = std::move(body)});
    }

    /// Makes later requests for `url` wait again.
    void forget(const std::string& url) { answers_.erase(url); }

    /// Answers the oldest waiting request, or the one that so many `older` ones wait before.
    void answer(Result result, std::size_t older = 0)
    {
        if (pending.size() <= older) throw std::logic_error("no such request is waiting");
        const auto answered = pending.begin() + static_cast<std::ptrdiff_t>(older);
        post(std::move(answered->complete), std::move(result));
        pending.erase(answered);
    }

    std::vector<platform::HttpRequest> requests;
    std::deque<Pending> pending;

private:
    void post(support::UniqueFunction<void(Result)> complete, Result result)
    {
        executor_.post(
            [complete = std::move(complete), result = std::move(result)]() mutable { complete(std::move(result)); });
    }

    platform::Executor& executor_;
    std::map<std::string, Result> answers_;
};

}  // namespace larkspan::fakes
