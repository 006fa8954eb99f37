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

    /// Stops, if that has not been done. The loop must still be there then.
    ~CurlTransport() override;
    CurlTransport(const CurlTransport&) = delete;
    CurlTransport& operator=(const CurlTransport&) = delete;

    /// Drops what is under way and whatever is sent later, completions uncalled: the program ends. Waits for what the
    /// loop is running just now, and needs the loop no more afterwards. Once, from the thread that owns the transport.
    void stop();

    /// May be called from any thread.
    void send(
        platform::HttpRequest request, std::stop_token stop, support::UniqueFunction<void(Result)> complete) override;

private:
    ClientLoop& loop_;
    std::shared_ptr<TransportOperations> operations_;
    bool isStopped_ = false;
};

}  // namespace larkspan::adapters
