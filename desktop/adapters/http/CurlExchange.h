#pragma once

#include <curl/curl.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>

#include "adapters/http/ClientLoop.h"
#include "adapters/http/CurlHandles.h"
#include "adapters/http/ResponseHead.h"
#include "adapters/http/TlsSession.h"
#include "adapters/http/TransportSettings.h"
#include "platform/HttpTransport.h"

namespace larkspan::adapters {

/// One request with its redirects, until its answer is complete. Destruction closes the connection that it uses and
/// `finished` is not called. Loop's thread only.
class CurlExchange {
public:
    using Result = platform::HttpTransport::Result;
    using Finished = support::UniqueFunction<void(Result)>;

    /// Sends `request` through `proxy`: empty for none, absent for what the environment says. `finished` is called
    /// once, never from the constructor, and may destroy the exchange. `loop` and `settings` must outlive it.
    CurlExchange(ClientLoop& loop, const TransportSettings& settings, platform::HttpRequest request,
        std::optional<std::string> proxy, Finished finished);
    ~CurlExchange();
    CurlExchange(const CurlExchange&) = delete;
    CurlExchange& operator=(const CurlExchange&) = delete;

private:
    void send();
    void setTransport();
    void setReceivers();
    void ended(CURLcode result);
    Result outcome(CURLcode result);
    bool isWhole() const;
    bool followRedirect();
    bool isFirstWriteTo(const platform::HttpRequest& next);
    void finish(Result result);

    void watchForSilence();

    static int noteSocket(void* exchange, curl_socket_t socket, curlsocktype purpose);
    static int beforeRequest(void* exchange, char* peerAddress, char* localAddress, int peerPort, int localPort);
    static std::size_t receiveHeader(char* bytes, std::size_t, std::size_t size, void* exchange);
    static std::size_t receiveBody(char* bytes, std::size_t, std::size_t size, void* exchange);
    static int observeProgress(void* exchange, curl_off_t, curl_off_t, curl_off_t, curl_off_t);

    ClientLoop& loop_;
    const TransportSettings& settings_;
    platform::HttpRequest request_;
    const std::optional<std::string> proxy_;
    Finished finished_;

    HeaderList headers_;
    TransferHandle transfer_;
    int redirects_ = 0;
    /// The paths to which a write has been sent.
    std::set<std::string, std::less<>> writtenTo_;
    bool needsFreshConnection_ = false;
    ResponseHead head_;
    TlsSession session_;
    std::string body_;
    bool isBodyTooLarge_ = false;

    std::uint64_t bytesSeen_ = 0;
    ClientLoop::Clock::time_point lastByte_;
    ClientLoop::Alarm silence_;
};

}  // namespace larkspan::adapters
