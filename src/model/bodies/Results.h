#pragma once

#include <vector>

#include "model/json/TypeList.h"

namespace larkspan::model {

struct Component;
struct ComponentGroup;
struct ComponentGroupsResponse;
struct ComponentMonitorsResponse;
struct ComponentsResponse;
struct EmptyResponse;
struct Incident;
struct IncidentStatesEnvelope;
struct Maintenance;
struct Monitor;
struct MonitorMetricsResponse;
struct MonitorWithMetrics;
struct OnCallStatus;
struct StatusPage;
struct StatusPageAnalytics;
struct StatusPagesStatusEnvelope;
struct SubscriberCount;
struct Team;
struct TeamMembership;

/// The results that a request may ask for, in either result shape. The decoder is compiled for these and for those
/// below, and the fuzzer covers them all.
using Results = TypeList<Component, ComponentGroup, EmptyResponse, Incident, IncidentStatesEnvelope, Maintenance,
    MonitorMetricsResponse, OnCallStatus, StatusPage, StatusPageAnalytics, StatusPagesStatusEnvelope, SubscriberCount,
    std::vector<Incident>, std::vector<Maintenance>, std::vector<Monitor>, std::vector<MonitorWithMetrics>,
    std::vector<StatusPage>, std::vector<Team>, std::vector<TeamMembership>>;

/// Answers whose list is under `data`, under the one key of its envelope, which is named here, or bare.
using ListEnvelopes = TypeList<ComponentGroupsResponse, ComponentsResponse>;

/// Answers that are bare and never under `data`.
using BareResults = TypeList<ComponentMonitorsResponse>;

}  // namespace larkspan::model
