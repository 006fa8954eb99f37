#pragma once

#include "server/FaultReader.h"
#include "server/ServerCertificates.h"
#include "service/Router.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// Controls a running simulator for tests and for people at another terminal, under paths that the service does not
/// have:
///
/// - POST /simulator/faults: a fault, as `readFaultRule` reads it; DELETE: removes all faults
/// - GET /simulator/requests: the requests to the service: method, target, headers, body; DELETE: forgets them
/// - PUT /simulator/pages: {"seed": "small"} or {"pages": [{"id", "name", "health"}, ...]}; the
///   previous incidents and maintenances are removed, and only a seed adds new ones; with it, {"id_prefix": "an_"}
///   is prepended to the id of each record
/// - PATCH /simulator/pages/ID: {"health": "degraded"}, {"name"}, {"status"}, {"code", "label"}
/// - POST /simulator/incidents: {"title", "page", "message", "severity", "status"}, only the title is required: a major
///   one, "active" by default; answers 201 with {"id"}
/// - PATCH /simulator/incidents/ID: {"status": "active", "acknowledged" or "resolved"}, {"message"}, which is added
/// - PUT /simulator/incident-states: {"stages": ["Open", ..., "Closed"]}, numbered from 1; the last ends
///   an incident
/// - POST /simulator/maintenances: {"title", "page", "message", "status"}, the last two optional: "scheduled" by
///   default; answers 201 with {"id"}
/// - PATCH /simulator/maintenances/ID: {"status": "scheduled", "in_progress" or "completed"}, by moving its dates
/// - PUT /simulator/keys: {"KEY": "full" or "none", ...}, replaces the known ones
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
