#pragma once

#include <vector>

#include "model/TypeList.h"

namespace larkspan::model {

struct EmptyResponse;
struct Incident;
struct IncidentStatesEnvelope;
struct Maintenance;
struct StatusPage;
struct StatusPagesStatusEnvelope;

/// What the service answers: the types that a request may ask for. The decoder is compiled for these, and the fuzzer
/// feeds these.
using Results = TypeList<EmptyResponse, Incident, IncidentStatesEnvelope, Maintenance, StatusPagesStatusEnvelope,
    std::vector<Incident>, std::vector<Maintenance>, std::vector<StatusPage>>;

}  // namespace larkspan::model
