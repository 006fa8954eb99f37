#include "api/KestruneAPI.h"

namespace larkspan::api {

KestruneAPI::KestruneAPI(Ports ports, const std::string& serviceHost)
    : RequestEngine(ports, serviceHost)
    , StatusPageEndpoints(static_cast<RequestEngine&>(*this))
    , IncidentEndpoints(static_cast<RequestEngine&>(*this))
    , MaintenanceEndpoints(static_cast<RequestEngine&>(*this))
{
}

}  // namespace larkspan::api
