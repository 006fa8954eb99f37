#pragma once

#include <vector>

#include "model/TypeList.h"

namespace larkspan::model {

struct ComponentGroupsResponse;
struct ComponentMonitorsResponse;
struct ComponentsResponse;
struct EmptyResponse;
struct Incident;
struct IncidentStatesEnvelope;
struct Maintenance;
struct StatusPage;
struct StatusPagesStatusEnvelope;

/// What the service answers: the types that a request may ask for, in either result shape. The decoder is compiled for
/// these and for those below, and the fuzzer feeds them all.
using Results = TypeList<EmptyResponse, Incident, IncidentStatesEnvelope, Maintenance, StatusPagesStatusEnvelope,
    std::vector<Incident>, std::vector<Maintenance>, std::vector<StatusPage>>;

/// Answers whose list comes under `data`, under the one key of its own envelope, which is named here, or bare.
using ListEnvelopes = TypeList<ComponentGroupsResponse, ComponentsResponse>;

/// Answers that come as they are and never under `data`.
using BareResults = TypeList<ComponentMonitorsResponse>;

}  // namespace larkspan::model
