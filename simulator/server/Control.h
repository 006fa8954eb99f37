#pragma once

#include "server/FaultReader.h"
#include "server/ServerCertificates.h"
#include "service/Router.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// How a test or a person behind another terminal steers a running simulator, under paths outside the service's:
///
/// - POST /simulator/faults: a fault, as `readFaultRule` takes it; DELETE: no faults any more
/// - GET /simulator/requests: what the service was sent: method, target, headers, body; DELETE: forget that
/// - PUT /simulator/pages: {"seed": "small"} or {"pages": [{"id", "name", "health"}, ...]}; the
///   incidents and maintenances known before are gone, and only a seed brings new ones; with it, {"id_prefix": "an_"}
///   stands before the id of each record
/// - PATCH /simulator/pages/ID: {"health": "degraded"}, {"name"}, {"status"}, {"code", "label"}
/// - POST /simulator/incidents: {"title", "page", "message", "severity", "status"}, all but the title optional: a major
///   one, "active" unless told otherwise; answers 201 with {"id"}
/// - PATCH /simulator/incidents/ID: {"status": "active", "acknowledged" or "resolved"}, {"message"}, which is added
/// - PUT /simulator/incident-states: {"stages": ["Open", ..., "Closed"]}, numbered from 1; the last ends
///   an incident
/// - POST /simulator/maintenances: {"title", "page", "message", "status"}, the last two optional: "scheduled" unless
///   told otherwise; answers 201 with {"id"}
/// - PATCH /simulator/maintenances/ID: {"status": "scheduled", "in_progress" or "completed"}, by moving its dates
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
