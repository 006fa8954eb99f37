#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "PreparedTransport.h"
#include "account/Account.h"
#include "api/KestruneAPI.h"
#include "api/KeychainHelper.h"
#include "demo/MemoryCredentialStore.h"
#include "fakes/FakeDesktop.h"
#include "fakes/ManualClock.h"

namespace larkspan::bench {

/// The client's real code with `account`, and everything around it in memory.
class Client {
public:
    static constexpr const char* key = "bench";

    /// `main` and `worker` must outlive this object, and may be the same; so must the panel's item, if there is one.
    Client(simulator::Account account, platform::Executor& main, platform::Executor& worker,
        platform::StatusItem* item = nullptr)
        : service_(withKey(std::move(account)))
        , transport_(service_, worker)
        , api_({worker, transport_, store_, clock_}, "kestrune.example")
        , state_(core::AppStateManager::make(desktop_.ports(main, clock_, store_, api_, item)))
    {
        api::KeychainHelper::saveAPIKey(store_, key);
        state_->setupStatusItem({});
    }

    /// Sets the service's answer for a path, whatever the account contains.
    void prepare(const std::string& path, std::string body)
    {
        transport_.prepare("https://kestrune.example/user/api/" + path, std::move(body));
    }

    core::AppStateManager& state() { return *state_; }
    api::KestruneAPI& api() { return api_; }
    const std::shared_ptr<core::AppStateManager>& sharedState() const { return state_; }
    platform::Timers& timers() { return desktop_.timers; }
    const platform::Clock& clock() const { return clock_; }
    platform::CredentialStore& store() { return store_; }

private:
    static simulator::Account withKey(simulator::Account account)
    {
        account.keys.insert_or_assign(key, simulator::KeyRights::full);
        return account;
    }

    fakes::FakeDesktop desktop_;
    fakes::ManualClock clock_;
    simulator::MemoryCredentialStore store_;
    simulator::Service service_;
    PreparedTransport transport_;
    api::KestruneAPI api_;
    std::shared_ptr<core::AppStateManager> state_;
};

}  // namespace larkspan::bench
