#pragma once

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>

#include "adapters/http/ClientLoop.h"
#include "adapters/http/CurlExchange.h"
#include "adapters/http/TransportSettings.h"
#include "platform/HttpTransport.h"

namespace larkspan::adapters {

/// The requests of a transport from start to completion: their deadline, cancellation, proxy and, for reads, their
/// turn. Loop's thread only.
///
/// Reads take turns on one connection, so that the polls of an idle program cost one handshake at most; a read that
/// waits too long gets another connection. Writes do not wait.
class TransportOperations : public std::enable_shared_from_this<TransportOperations> {
public:
    using Result = platform::HttpTransport::Result;
    using Complete = support::UniqueFunction<void(Result)>;

    TransportOperations(ClientLoop& loop, TransportSettings settings);

    void begin(platform::HttpRequest request, std::stop_token stop, Complete complete);

    /// Forgets every request, also later ones, without calling their completions.
    void stop();

private:
    using Id = std::uint64_t;
    using Code = platform::URLError::Code;

    /// Ends a request in a later turn of the loop. May be called from any thread.
    struct Ending {
        ClientLoop& loop;
        std::weak_ptr<TransportOperations> operations;
        Id id;
        Code code;

        void operator()() const;
    };

    struct Operation {
        platform::HttpRequest request;
        Complete complete;
        ClientLoop::Alarm deadline;
        std::optional<std::stop_callback<Ending>> onStop;
        std::optional<std::string> proxy;
        ClientLoop::Alarm endOfPatience;
        std::unique_ptr<CurlExchange> exchange;
    };

    Ending endingLater(Id id, Code code);
    void findProxy(Id id);
    void bringProxy(Id id, std::string proxy);
    void takeProxy(Id id, std::string proxy);
    void awaitTurn(Id id);
    bool isReading() const;
    void exchange(Id id);
    void startNextRead();
    void finish(Id id, Result result);

    ClientLoop& loop_;
    const TransportSettings settings_;
    std::map<Id, Operation> operations_;
    Id lastId_ = 0;
    std::atomic<bool> isStopped_{false};
};

}  // namespace larkspan::adapters
