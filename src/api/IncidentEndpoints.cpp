#include "api/IncidentEndpoints.h"

#include <algorithm>
#include <utility>

#include "api/APIError.h"
#include "api/RequestSending.h"
#include "api/RequestURL.h"
#include "model/bodies/IncidentRequests.h"
#include "model/records/Incident.h"
#include "support/IgnoringCase.h"

namespace larkspan::api {

using model::AppendIncidentUpdateRequest;
using model::Incident;
using model::IncidentState;
using support::Task;
using Base = RequestEngine::Base;

IncidentEndpoints::IncidentEndpoints(RequestEngine& engine)
    : engine_(engine)
{
}

Task<std::vector<Incident>> IncidentEndpoints::fetchIncidents(
    std::optional<std::string> statusPageId, std::stop_token stop)
{
    const bool ofOnePage = statusPageId && !statusPageId->empty();
    RequestEngine::Call call{
        .path = ofOnePage ? "incidents?status_page_id=" + queryEscaped(*statusPageId) : "/incidents"};
    return engine_.sendRequest<std::vector<Incident>>(std::move(call), std::move(stop));
}

Task<Incident> IncidentEndpoints::fetchIncident(std::string id)
{
    return engine_.sendRequest<Incident>({.path = "/incidents/" + id});
}

Task<Incident> IncidentEndpoints::createIncident(model::CreateIncidentRequest request)
{
    return engine_.sendRecord<Incident>({.method = "POST", .path = "/incidents"}, std::move(request));
}

Task<Incident> IncidentEndpoints::updateIncident(std::string id, std::string message)
{
    return appendIncidentUpdate(std::move(id), std::move(message), std::nullopt);
}

Task<Incident> IncidentEndpoints::appendIncidentUpdate(
    std::string id, std::optional<std::string> message, std::optional<std::string> incidentStateId)
{
    AppendIncidentUpdateRequest body{.message = std::move(message), .incidentStateId = std::move(incidentStateId)};
    return engine_.sendRecord<Incident>({.method = "PATCH", .path = "/incidents/" + id}, std::move(body));
}

Task<void> IncidentEndpoints::acknowledgeIncident(std::string id)
{
    return engine_.sendForNothing({Base::feature, "POST", "/incidents/" + id + "/acknowledge"});
}

Task<void> IncidentEndpoints::escalateIncident(std::string id)
{
    return engine_.sendForNothing({Base::feature, "POST", "/incidents/" + id + "/escalate"});
}

Task<void> IncidentEndpoints::deleteIncident(std::string id)
{
    return engine_.sendForNothing({.method = "DELETE", .path = "/incidents/" + id});
}

Task<std::vector<IncidentState>> IncidentEndpoints::fetchIncidentStates()
{
    return support::on(engine_.executor(), incidentStates());
}

Task<std::vector<IncidentState>> IncidentEndpoints::incidentStates()
{
    if (cachedIncidentStates_) co_return *cachedIncidentStates_;
    RequestEngine::Call call{.base = Base::feature, .path = "incident-states"};
    auto sending = engine_.sendRequest<model::IncidentStatesEnvelope>(std::move(call));
    auto envelope = co_await std::move(sending);
    cachedIncidentStates_ = std::move(envelope.incidentStates);
    co_return *cachedIncidentStates_;
}

Task<Incident> IncidentEndpoints::resolveIncident(std::string id)
{
    return support::on(engine_.executor(), resolve(std::move(id)));
}

Task<Incident> IncidentEndpoints::resolve(std::string id)
{
    // Each account defines its own final state, so its number is fetched and never assumed.
    auto fetching = incidentStates();
    const auto states = co_await std::move(fetching);
    const auto isResolved
        = [](const IncidentState& state) { return support::equalsIgnoringCase(state.stage, "resolved"); };
    const auto resolved = std::ranges::find_if(states, isResolved);
    if (resolved == states.end()) {
        throw APIError::custom("This account has no \"Resolved\" incident state configured.");
    }
    auto updating = appendIncidentUpdate(std::move(id), std::nullopt, std::to_string(resolved->id));
    auto incident = co_await std::move(updating);
    co_return incident;
}

}  // namespace larkspan::api
