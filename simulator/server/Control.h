#pragma once

#include <functional>

#include "server/FaultReader.h"
#include "server/ServerCertificates.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// How a test or a person behind another terminal steers a running simulator, under paths outside the service's:
///
/// - POST /simulator/faults: a fault, as `readFaultRule` takes it; DELETE: no faults any more
/// - GET /simulator/requests: what the service was sent: method, target, headers, body; DELETE: forget that
/// - PUT /simulator/pages: {"seed": "small"} or {"pages": [{"id", "name", "health"}, ...]}, which come without
/// incidents
///   and maintenances; those known before are gone
/// - PATCH /simulator/pages/ID: {"health": "degraded"}, {"name"}, {"status"}, {"code", "label"}
/// - PUT /simulator/keys: {"KEY": "full" or "none", ...}, in place of those known
/// - PUT /simulator/shape: {"shape": "data" or "bare"}
/// - PUT /simulator/certificate: {"certificate": "valid", "expired", "wrong-name" or "untrusted"}
///
/// Answers 204, or the result, or 400 with a sentence under "error". Needs no key.
class Control {
public:
    Control(Service& service, ServerCertificates& certificates);

    static bool isMeant(const Request& request) { return request.path().starts_with("/simulator/"); }

    Reply answer(const Request& request);

private:
    Router router_;
};

}  // namespace larkspan::simulator
