#include <algorithm>
#include <utility>

#include "api/APIError.h"
#include "api/KestruneAPI.h"
#include "api/RecordSending.h"
#include "api/RequestURL.h"
#include "support/IgnoringCase.h"

namespace larkspan::api {

using model::AppendIncidentUpdateRequest;
using model::Incident;
using model::IncidentState;
using support::Task;

namespace {

std::string incidentPath(const std::string& id)
{
    return "/incidents/" + id;
}

}  // namespace

Task<std::vector<Incident>> KestruneAPI::fetchIncidents(std::optional<std::string> statusPageId, std::stop_token stop)
{
    const bool ofOnePage = statusPageId && !statusPageId->empty();
    Call call{.path = ofOnePage ? "incidents?status_page_id=" + queryEscaped(*statusPageId) : "/incidents"};
    return sendRequest<std::vector<Incident>>(std::move(call), std::move(stop));
}

Task<Incident> KestruneAPI::fetchIncident(std::string id)
{
    return sendRequest<Incident>({.path = incidentPath(id)});
}

Task<Incident> KestruneAPI::createIncident(model::CreateIncidentRequest request)
{
    Call call{.method = "POST", .path = "/incidents"};
    return support::on(ports_.executor, sendRecord<Incident>(std::move(call), std::move(request)));
}

Task<Incident> KestruneAPI::updateIncident(std::string id, std::string message)
{
    return appendIncidentUpdate(std::move(id), std::move(message), std::nullopt);
}

Task<Incident> KestruneAPI::appendIncidentUpdate(
    std::string id, std::optional<std::string> message, std::optional<std::string> incidentStateId)
{
    Call call{.method = "PATCH", .path = incidentPath(id)};
    AppendIncidentUpdateRequest body{.message = std::move(message), .incidentStateId = std::move(incidentStateId)};
    return support::on(ports_.executor, sendRecord<Incident>(std::move(call), std::move(body)));
}

Task<void> KestruneAPI::acknowledgeIncident(std::string id)
{
    Call call{.base = Base::feature, .method = "POST", .path = incidentPath(id) + "/acknowledge"};
    return support::on(ports_.executor, sendForNothing(std::move(call)));
}

Task<void> KestruneAPI::escalateIncident(std::string id)
{
    Call call{.base = Base::feature, .method = "POST", .path = incidentPath(id) + "/escalate"};
    return support::on(ports_.executor, sendForNothing(std::move(call)));
}

Task<void> KestruneAPI::deleteIncident(std::string id)
{
    Call call{.method = "DELETE", .path = incidentPath(id)};
    return support::on(ports_.executor, sendForNothing(std::move(call)));
}

Task<std::vector<IncidentState>> KestruneAPI::fetchIncidentStates()
{
    return support::on(ports_.executor, incidentStates());
}

Task<std::vector<IncidentState>> KestruneAPI::incidentStates()
{
    if (cachedIncidentStates_) co_return *cachedIncidentStates_;
    Call call{.base = Base::feature, .path = "incident-states"};
    auto sending = sendRequest<model::IncidentStatesEnvelope>(std::move(call));
    auto envelope = co_await std::move(sending);
    cachedIncidentStates_ = std::move(envelope.incidentStates);
    co_return *cachedIncidentStates_;
}

Task<Incident> KestruneAPI::resolveIncident(std::string id)
{
    return support::on(ports_.executor, resolve(std::move(id)));
}

Task<Incident> KestruneAPI::resolve(std::string id)
{
    // Which state means the end is the account's own choice, so its number is asked for and never assumed.
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
