#include "fakes/Service.h"

#include "api/KestruneAPI.h"
#include "api/KeychainHelper.h"

namespace larkspan::fakes {

Service::Service()
    : ownAPI(std::make_unique<api::KestruneAPI>(api::KestruneAPI::Ports{client, transport, credentials, clock}, host))
    , api(*ownAPI)
{
    api::KeychainHelper::saveAPIKey(credentials, "k-123");
}

Service::~Service() = default;

}  // namespace larkspan::fakes
