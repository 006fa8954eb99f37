#pragma once

#include <memory>
#include <optional>

#include "inprocess/Delays.h"
#include "platform/Executor.h"
#include "platform/HttpTransport.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// A transport to a `Service` in the same process. Faults have the results that they would have over a network.
class InProcessTransport final : public platform::HttpTransport {
public:
    /// Completions run on `executor`. All three must outlive the transport and the work that it has posted.
    InProcessTransport(Service& service, platform::Executor& executor, Delays& delays);
    ~InProcessTransport() override;

    void send(
        platform::HttpRequest request, std::stop_token stop, support::UniqueFunction<void(Result)> complete) override;

    /// Fails each request with `code` before it reaches the service, until called without one. Any thread.
    void failConnections(std::optional<platform::URLError::Code> code);

private:
    class Exchanges;

    std::shared_ptr<Exchanges> exchanges_;
};

}  // namespace larkspan::simulator
