#include "demo/DemoAccount.h"

#include "account/Seed.h"

namespace larkspan::simulator {

namespace {

Account smallAccount(support::Time now)
{
    auto account = seededAccount(*seedSize("small"), now);
    account.keys.emplace(DemoAccount::key, KeyRights::full);
    return account;
}

}  // namespace

DemoAccount::DemoAccount(
    const platform::Clock& clock, const platform::CredentialItem& item, std::chrono::milliseconds latency)
    : service_(smallAccount(clock.now()), clock)
    , transport_(std::in_place, service_, worker_, worker_)
{
    service_.live(Storyline::ordinaryDay());
    service_.inject({fault::Delay{latency}});
    credentialStore_.add(item, key);
}

void DemoAccount::stop()
{
    worker_.stop();
    // What waited for an answer unwinds over the worker, which runs nothing any more.
    transport_.reset();
    worker_.stop();
}

}  // namespace larkspan::simulator
