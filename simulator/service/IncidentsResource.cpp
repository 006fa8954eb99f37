#include <algorithm>

#include "account/IncidentWorkflow.h"
#include "service/Known.h"
#include "service/RequestBody.h"
#include "service/Resources.h"
#include "service/Router.h"
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
    return wireRecord({
        {"id", incident.id},
        {"title", incident.title},
        {"message", incident.message},
        {"created_at", incident.createdAt},
        {"updated_at", incident.updatedAt},
        {"ended_at", incident.endedAt},
        {"acknowledged_at", incident.acknowledgedAt},
        {"assigned_to_user_id", incident.assignedToUserId},
        {"component_id", incident.componentId},
        {"status_page_id", incident.statusPageId},
        {"severity_name", incident.severityName},
        {"incident_state_id", std::to_string(incident.stateId)},
        {"incident_state", stageOf(incident, account)},
    });
}

Json wireState(const IncidentState& state)
{
    return wireRecord({{"id", state.id}, {"stage", state.stage}, {"sort_order", state.sortOrder}});
}

Answer listIncidents(const Call& call)
{
    const auto page = call.request.query("status_page_id");
    auto incidents = Json::array();
    for (const auto& incident : call.account.incidents) {
        if (!page || incident.statusPageId == page) incidents.push_back(wireIncident(incident, call.account));
    }
    return ok(std::move(incidents));
}

Incident& named(const Call& call)
{
    return known(call.account.findIncident(call.wildcards.front()));
}

Answer createIncident(const Call& call)
{
    const RequestBody body(call.request);
    Incident draft;
    draft.title = body.requiredTextNotBlank("title");
    draft.message = body.text("message");
    if (const auto page = body.text("status_page_id")) draft.statusPageId = knownPage(call.account, *page);
    draft.componentId = body.text("component_id");
    // Neither is part of the record, but both are part of the request.
    static_cast<void>(body.text("monitor_id"));
    static_cast<void>(body.requiredFlag("notify_subscribers"));
    return {201, wireIncident(openIncident(call.account, std::move(draft), call.now), call.account)};
}

std::optional<int> readState(const std::optional<std::string>& id, const Account& account)
{
    if (!id) return std::nullopt;
    for (const auto& state : account.incidentStates) {
        if (std::to_string(state.id) == *id) return state.id;
    }
    throw Refusal(422, "There is no such incident state.");
}

Answer updateIncident(const Call& call)
{
    auto& incident = named(call);
    const RequestBody body(call.request);
    const auto message = body.text("message");
    const auto state = readState(body.text("incident_state_id"), call.account);
    if (!message && !state) throw Refusal(422, "There is nothing to change.");
    if (body.requiredFlag("append_update")) {
        if (message) appendUpdate(incident, *message, call.now);
    } else if (message) {
        incident.message = message;
        incident.updatedAt = call.now;
    }
    if (state) moveTo(call.account, incident, *state, call.now);
    return ok(wireIncident(incident, call.account));
}

const Answer taken = ok(wireRecord({{"success", true}}));

Answer acknowledgeIncident(const Call& call)
{
    auto& incident = named(call);
    if (!incident.isOpen()) throw Refusal(422, "The incident is resolved.");
    acknowledge(call.account, incident, call.now);
    return taken;
}

Answer escalateIncident(const Call& call)
{
    escalate(call.account, named(call), call.now);
    return taken;
}

Answer deleteIncident(const Call& call)
{
    removeIncident(call.account, named(call), call.now);
    return {204};
}

}  // namespace

void addIncidentsRoutes(Router& router)
{
    router.add("GET", "/user/api/v1/incidents", listIncidents);
    router.add("POST", "/user/api/v1/incidents", createIncident);
    router.add("GET", "/user/api/v1/incidents/*",
        [](const Call& call) { return ok(wireIncident(named(call), call.account)); });
    router.add("PATCH", "/user/api/v1/incidents/*", updateIncident);
    router.add("DELETE", "/user/api/v1/incidents/*", deleteIncident);
    router.add("POST", "/user/api/incidents/*/acknowledge", acknowledgeIncident);
    router.add("POST", "/user/api/incidents/*/escalate", escalateIncident);
    router.add("GET", "/user/api/incident-states", [](const Call& call) {
        return ok(wireRecord({{"incident_states", wireList(call.account.incidentStates, wireState)}}));
    });
}

}  // namespace larkspan::simulator
