#include "fakes/ScriptedService.h"

#include "api/KestruneAPI.h"
#include "api/KeychainHelper.h"

namespace larkspan::fakes {

ScriptedService::ScriptedService()
    : ownAPI(std::make_unique<api::KestruneAPI>(api::KestruneAPI::Ports{client, transport, credentials, clock}, host))
    , api(*ownAPI)
{
    api::KeychainHelper::saveAPIKey(credentials, "k-123");
}

ScriptedService::~ScriptedService() = default;

std::vector<std::string> ScriptedService::sent() const
{
    const std::string origin = std::string("https://") + host;
    std::vector<std::string> lines;
    for (const auto& request : transport.requests) {
        lines.push_back(request.method + " " + request.url.substr(origin.size()));
    }
    return lines;
}

}  // namespace larkspan::fakes
