#include "demo/DemoAccount.h"

#include "account/Storyline.h"
#include "demo/LivelyAccount.h"

namespace larkspan::simulator {

DemoAccount::DemoAccount(
    const platform::Clock& clock, const platform::CredentialItem& item, std::chrono::milliseconds latency)
    : service_(livelyAccount(key, clock.now()), clock)
    , transport_(std::make_unique<InProcessTransport>(service_, worker_, worker_))
{
    service_.live(Storyline::ordinaryDay());
    service_.inject({fault::Delay{latency}});
    credentialStore_.add(item, key);
}

void DemoAccount::stop()
{
    worker_.stop();
    // Tasks that waited for an answer unwind on the worker, which runs nothing any more.
    transport_.reset();
    worker_.stop();
}

}  // namespace larkspan::simulator
