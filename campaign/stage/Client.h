#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "adapters/http/ClientLoop.h"
#include "adapters/http/CurlTransport.h"
#include "api/KestruneAPI.h"
#include "demo/MemoryCredentialStore.h"

namespace larkspan::campaign {

/// The key of every cell. Nothing else in a program of the campaign has this text.
inline const std::string key = "campaign-key-8c1f27d05a";

/// The servers of the campaign are not behind the proxy of the person who runs it.
void useNoProxy();

/// Sends with a shorter limit for the whole request than the program's minute.
class HastyTransport final : public platform::HttpTransport {
public:
    explicit HastyTransport(platform::HttpTransport& transport)
        : transport_(transport)
    {
    }

    void send(
        platform::HttpRequest request, std::stop_token stop, support::UniqueFunction<void(Result)> complete) override;

private:
    platform::HttpTransport& transport_;
};

/// The program's client over its real transport, with connections of its own.
class Client {
public:
    /// The client reaches the service at 127.0.0.1 and `port`.
    explicit Client(int port);

    /// Runs one operation on the client's thread; returns the sentence of its failure, empty if it succeeded.
    std::string run(support::Task<void> operation);

    /// Drops every request and ends the client's thread, as the program does when it ends. Call it once, at the end.
    void stop();

    api::KestruneAPI& api() { return api_; }
    adapters::ClientLoop& loop() { return *loop_; }
    simulator::MemoryCredentialStore& store() { return store_; }

    /// The largest body that the client takes, in bytes.
    static constexpr std::size_t largestBody = 512 * 1024;

private:
    static adapters::TransportSettings settings();

    simulator::MemoryCredentialStore store_;
    std::optional<adapters::ClientLoop> loop_{std::in_place};
    adapters::CurlTransport transport_;
    HastyTransport hasty_;
    api::KestruneAPI api_;
};

}  // namespace larkspan::campaign
