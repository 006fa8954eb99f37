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

/// The program's only access to the service. Its operations may be awaited on any executor; they run on the client's
/// own and interleave there while they wait. They throw `APIError`, `platform::URLError` or `model::DecodingError`. A
/// write is sent once, whatever its result; a read may be sent a second time if its kept connection turns out to be
/// closed. Must outlive every task that it has returned.
///
/// Code that uses the operations of one resource only takes that base.
class KestruneAPI final : public RequestEngine,
                          public StatusPageEndpoints,
                          public IncidentEndpoints,
                          public MaintenanceEndpoints,
                          public MonitorEndpoints,
                          public ComponentEndpoints,
                          public TeamEndpoints {
public:
    /// `serviceHost` is a host or host:port and is reached over HTTPS.
    KestruneAPI(Ports ports, const std::string& serviceHost)
        : KestruneAPI(ports, serviceHost, *this)
    {
    }

private:
    // A base would take a plain `*this` for an object to copy.
    KestruneAPI(Ports ports, const std::string& serviceHost, RequestEngine& engine)
        : RequestEngine(ports, serviceHost)
        , StatusPageEndpoints(engine)
        , IncidentEndpoints(engine)
        , MaintenanceEndpoints(engine)
        , MonitorEndpoints(engine)
        , ComponentEndpoints(engine)
        , TeamEndpoints(engine)
    {
    }
};

}  // namespace larkspan::api
