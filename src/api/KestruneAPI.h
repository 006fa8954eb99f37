#pragma once

#include <string>

#include "api/ComponentEndpoints.h"
#include "api/IncidentEndpoints.h"
#include "api/MaintenanceEndpoints.h"
#include "api/MonitorEndpoints.h"
#include "api/RequestEngine.h"
#include "api/StatusPageEndpoints.h"
#include "api/TeamEndpoints.h"

namespace larkspan::api {

/// The operations of each resource, over one engine.
template <typename... Endpoints>
class OperationsOf : public RequestEngine, public Endpoints... {
public:
    /// `serviceHost` is a host or host:port and is reached over HTTPS.
    OperationsOf(Ports ports, const std::string& serviceHost)
        : RequestEngine(ports, serviceHost)
        , Endpoints(static_cast<RequestEngine&>(*this))...
    {
    }
};

/// The program's only road to the service. Its operations may be awaited from any executor; they work on the
/// client's own and interleave there while they wait. They throw `APIError`, `platform::URLError` or
/// `model::DecodingError`. What changes something on the service is sent once, whatever becomes of it; a read may go
/// out a second time where the connection kept for it turns out to be dead. It must outlive every task that it gave.
///
/// Whoever uses the operations of one resource alone asks for that base.
class KestruneAPI final : public OperationsOf<StatusPageEndpoints, IncidentEndpoints, MaintenanceEndpoints,
                              MonitorEndpoints, ComponentEndpoints, TeamEndpoints> {
public:
    using OperationsOf::OperationsOf;
};

}  // namespace larkspan::api
