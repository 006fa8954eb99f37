#include "service/IncidentsResource.h"

#include <algorithm>

#include "service/WireRecord.h"

namespace larkspan::simulator {

namespace {

std::optional<std::string> stageOf(const Incident& incident, const Account& account)
{
    const auto state = std::ranges::find(account.incidentStates, incident.stateId, &IncidentState::id);
    return state == account.incidentStates.end() ? std::nullopt : std::optional(state->stage);
}

Json wireIncident(const Incident& incident, const Account& account)
{
    return WireRecord()
        .with("id", Json(incident.id))
        .with("title", Json(incident.title))
        .with("message", incident.message)
        .with("created_at", Json(wireDate(incident.createdAt)))
        .with("updated_at", incident.updatedAt)
        .with("ended_at", incident.endedAt)
        .with("acknowledged_at", incident.acknowledgedAt)
        .with("assigned_to_user_id", incident.assignedToUserId)
        .with("component_id", incident.componentId)
        .with("status_page_id", incident.statusPageId)
        .with("severity_name", incident.severityName)
        .with("incident_state_id", Json(std::to_string(incident.stateId)))
        .with("incident_state", stageOf(incident, account))
        .json();
}

Answer listIncidents(const Call& call)
{
    const auto page = call.request.query("status_page_id");
    Json::Array incidents;
    for (const auto& incident : call.account.incidents) {
        if (!page || incident.statusPageId == page) incidents.push_back(wireIncident(incident, call.account));
    }
    return {200, Json(std::move(incidents))};
}

Answer listStates(const Call& call)
{
    Json::Array states;
    for (const auto& state : call.account.incidentStates) {
        states.push_back(Json::object({{"id", state.id}, {"stage", state.stage}, {"sort_order", state.sortOrder}}));
    }
    return {200, Json::object({{"incident_states", std::move(states)}})};
}

}  // namespace

void addIncidentsRoutes(Router& router)
{
    router.add("GET", "/user/api/v1/incidents", listIncidents);
    router.add("GET", "/user/api/incident-states", listStates);
}

}  // namespace larkspan::simulator
