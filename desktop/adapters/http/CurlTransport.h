#pragma once

#include <memory>

#include "adapters/http/ClientLoop.h"
#include "adapters/http/TransportSettings.h"
#include "platform/HttpTransport.h"

namespace larkspan::adapters {

class TransportOperations;

/// The road to the service: HTTPS by libcurl on the client's own thread.
class CurlTransport final : public platform::HttpTransport {
public:
    /// Completes on `loop`, which outlives the transport.
    explicit CurlTransport(ClientLoop& loop, TransportSettings settings = {});

    /// Drops what is under way, its completions uncalled. Waits for what the loop is running just now.
    ~CurlTransport() override;
    CurlTransport(const CurlTransport&) = delete;
    CurlTransport& operator=(const CurlTransport&) = delete;

    /// May be called from any thread.
    void send(
        platform::HttpRequest request, std::stop_token stop, support::UniqueFunction<void(Result)> complete) override;

private:
    ClientLoop& loop_;
    std::shared_ptr<TransportOperations> operations_;
};

}  // namespace larkspan::adapters
