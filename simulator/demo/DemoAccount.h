#pragma once

#include <chrono>
#include <memory>

#include "demo/MemoryCredentialStore.h"
#include "inprocess/InProcessTransport.h"
#include "inprocess/WorkerThread.h"
#include "platform/Clock.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// A small account that changes with `clock`, a transport to it, and a store that already contains its key: all that
/// the application needs to run without service, network or key.
class DemoAccount {
public:
    /// The key that the account accepts and the store contains.
    static constexpr const char* key = "demo";

    /// `item` is the item in which the application looks for its key; `latency` is the delay of each answer.
    DemoAccount(const platform::Clock& clock, const platform::CredentialItem& item, std::chrono::milliseconds latency);

    Service& service() { return service_; }
    platform::CredentialStore& credentialStore() { return credentialStore_; }
    platform::HttpTransport& transport() { return *transport_; }

    /// The executor of the application's client, on which the transport completes.
    platform::Executor& executor() { return worker_; }

    /// Ends transport and executor and drops all requests. Call it once, when the application ends.
    void stop();

private:
    Service service_;
    MemoryCredentialStore credentialStore_;
    WorkerThread worker_;
    std::unique_ptr<InProcessTransport> transport_;
};

}  // namespace larkspan::simulator
