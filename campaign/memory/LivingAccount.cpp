#include "memory/LivingAccount.h"

#include <stdexcept>

#include "account/Storyline.h"
#include "api/KeychainHelper.h"
#include "demo/LivelyAccount.h"

namespace larkspan::campaign {

namespace {

constexpr const char* key = "memory";
// More than are open at any time.
constexpr std::size_t keptEvents = 20;

}  // namespace

LivingAccount::LivingAccount()
    : service_(simulator::livelyAccount(key, clock_.now()), clock_)
{
    service_.live(simulator::Storyline::ordinaryDay());
    api::KeychainHelper::saveAPIKey(store_, key);
    state_->setupStatusItem({});
    executor_.run();
}

void LivingAccount::refresh()
{
    using namespace std::chrono_literals;
    clock_.time += 1min;
    const auto before = *state_->lastRefresh;
    state_->refreshNow();
    executor_.run();
    desktop_.timers.advance(1min);
    executor_.run();
    if (*state_->lastRefresh == before) throw std::runtime_error("a cycle failed");
    noticeCount_ += desktop_.notifications.added.size();
    desktop_.notifications.added.clear();
    forgetWhatIsOver();
}

/// The service's own history would grow for ever.
void LivingAccount::forgetWhatIsOver()
{
    service_.forgetReceived();
    service_.withAccount([](simulator::Account& account) {
        if (account.incidents.size() > keptEvents) account.incidents.resize(keptEvents);
        if (account.maintenances.size() > keptEvents) account.maintenances.resize(keptEvents);
    });
}

}  // namespace larkspan::campaign
