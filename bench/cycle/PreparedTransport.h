#pragma once

#include <map>
#include <string>
#include <utility>

#include "inprocess/Redirection.h"
#include "platform/Executor.h"
#include "platform/HttpTransport.h"
#include "service/Service.h"

namespace larkspan::bench {

/// A transport that asks the service once for each URL and remembers the answer, so that later cycles measure the
/// client without the service.
class PreparedTransport final : public platform::HttpTransport {
public:
    PreparedTransport(simulator::Service& service, platform::Executor& executor)
        : service_(service)
        , executor_(executor)
    {
    }

    void send(platform::HttpRequest request, std::stop_token, support::UniqueFunction<void(Result)> complete) override
    {
        auto known = answers_.find(request.url);
        if (known == answers_.end()) {
            auto reply = simulator::answerWithRedirects(service_, request);
            known = answers_.emplace(request.url, platform::HttpResponse{reply.status, std::move(reply.body)}).first;
        }
        executor_.post(
            [complete = std::move(complete), answer = known->second]() mutable { complete(std::move(answer)); });
    }

    /// Answers requests for `url` with `body` from now on.
    void prepare(const std::string& url, std::string body)
    {
        answers_.insert_or_assign(url, platform::HttpResponse{200, std::move(body)});
    }

private:
    simulator::Service& service_;
    platform::Executor& executor_;
    std::map<std::string, platform::HttpResponse> answers_;
};

}  // namespace larkspan::bench
