#pragma once

#include <memory>
#include <optional>

#include "inprocess/Delays.h"
#include "platform/Executor.h"
#include "platform/HttpTransport.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// The road to a `Service` in the same process. Faults become what the network would make of them.
class InProcessTransport final : public platform::HttpTransport {
public:
    /// Completes on `executor`; all three outlive the transport and what it has posted.
    InProcessTransport(Service& service, platform::Executor& executor, Delays& delays);
    ~InProcessTransport() override;

    void send(
        platform::HttpRequest request, std::stop_token stop, support::UniqueFunction<void(Result)> complete) override;

    /// While given, no request reaches the service, and each fails so. May be called from any thread.
    void failConnections(std::optional<platform::URLError::Code> code);

private:
    class Exchanges;

    std::shared_ptr<Exchanges> exchanges_;
};

}  // namespace larkspan::simulator
