#pragma once

#include <string>

#include "api/IncidentEndpoints.h"
#include "api/MaintenanceEndpoints.h"
#include "api/RequestEngine.h"
#include "api/StatusPageEndpoints.h"

namespace larkspan::api {

/// The program's only road to the service. Its operations may be awaited from any executor; they work on the
/// client's own and interleave there while they wait. They throw `APIError`, `platform::URLError` or
/// `model::DecodingError`, and nothing is ever sent twice. It must outlive every task that it gave.
///
/// Each resource has its operations in a base, and whoever uses one resource alone asks for that base.
class KestruneAPI final : public RequestEngine,
                          public StatusPageEndpoints,
                          public IncidentEndpoints,
                          public MaintenanceEndpoints {
public:
    /// `serviceHost` is a host or host:port and is reached over HTTPS.
    KestruneAPI(Ports ports, const std::string& serviceHost);
};

}  // namespace larkspan::api
