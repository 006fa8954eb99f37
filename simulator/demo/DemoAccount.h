#pragma once

#include <chrono>
#include <optional>

#include "demo/MemoryCredentialStore.h"
#include "inprocess/InProcessTransport.h"
#include "inprocess/WorkerThread.h"
#include "platform/Clock.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// A small account that lives by `clock`, the road to it, and a store that holds its key already: what the
/// application needs of the outside to show itself without service, network or key.
class DemoAccount {
public:
    /// The key that the account knows and that stands in the store.
    static constexpr const char* key = "demo";

    /// `item` is where the application looks for its key; `latency` is what each answer takes, as over a network.
    DemoAccount(const platform::Clock& clock, const platform::CredentialItem& item, std::chrono::milliseconds latency);

    Service& service() { return service_; }
    platform::CredentialStore& credentialStore() { return credentialStore_; }
    platform::HttpTransport& transport() { return *transport_; }

    /// Where the transport completes: the executor for the application's client.
    platform::Executor& executor() { return worker_; }

    /// Ends transport and executor and drops what is under way: the application ends. Call it once.
    void stop();

private:
    Service service_;
    MemoryCredentialStore credentialStore_;
    WorkerThread worker_;
    std::optional<InProcessTransport> transport_;
};

}  // namespace larkspan::simulator
