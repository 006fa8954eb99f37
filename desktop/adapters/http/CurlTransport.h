#pragma once

#include <memory>

#include "adapters/http/ClientLoop.h"
#include "adapters/http/TransportSettings.h"
#include "platform/HttpTransport.h"

namespace larkspan::adapters {

class TransportOperations;

/// Sends requests over HTTPS with libcurl, on the client's own thread.
class CurlTransport final : public platform::HttpTransport {
public:
    /// Completions run on `loop`, which must outlive the transport.
    explicit CurlTransport(ClientLoop& loop, TransportSettings settings = {});

    /// Calls `stop()` unless that was done; the loop must still exist then.
    ~CurlTransport() override;
    CurlTransport(const CurlTransport&) = delete;
    CurlTransport& operator=(const CurlTransport&) = delete;

    /// Drops all requests, also later ones, without calling their completions: the program ends. Waits for what the
    /// loop is running, and does not need the loop afterwards. Call it once, on the thread that owns the transport.
    void stop();

    /// Any thread.
    void send(
        platform::HttpRequest request, std::stop_token stop, support::UniqueFunction<void(Result)> complete) override;

private:
    ClientLoop& loop_;
    std::shared_ptr<TransportOperations> operations_;
    bool isStopped_ = false;
};

}  // namespace larkspan::adapters
