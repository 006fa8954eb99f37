#pragma once

#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include "model/records/IncidentState.h"
#include "support/Task.h"

namespace larkspan::model {

struct CreateIncidentRequest;
struct Incident;

}  // namespace larkspan::model

namespace larkspan::api {

class RequestEngine;

/// The operations on the account's incidents.
class IncidentEndpoints {
public:
    explicit IncidentEndpoints(RequestEngine& engine);

    /// The incidents of one page, or of the whole account if `statusPageId` is absent or empty, in the service's order.
    support::Task<std::vector<model::Incident>> fetchIncidents(
        std::optional<std::string> statusPageId = {}, std::stop_token stop = {});
    support::Task<model::Incident> fetchIncident(std::string id);
    support::Task<model::Incident> createIncident(model::CreateIncidentRequest request);
    /// Adds `message` to the timeline without changing the state.
    support::Task<model::Incident> updateIncident(std::string id, std::string message);
    support::Task<model::Incident> appendIncidentUpdate(
        std::string id, std::optional<std::string> message, std::optional<std::string> incidentStateId);
    support::Task<void> acknowledgeIncident(std::string id);
    support::Task<void> escalateIncident(std::string id);
    /// The account's workflow, fetched once and then kept as long as the program runs.
    support::Task<std::vector<model::IncidentState>> fetchIncidentStates();
    /// Moves the incident into the first state of the workflow named "Resolved", ignoring the case of letters.
    support::Task<model::Incident> resolveIncident(std::string id);
    support::Task<void> deleteIncident(std::string id);

private:
    // Tasks that run on the client's executor; the public operations start them there.
    support::Task<std::vector<model::IncidentState>> incidentStates();
    support::Task<model::Incident> resolve(std::string id);

    RequestEngine& engine_;
    // Used on the client's executor only, as the key and every request are.
    std::optional<std::vector<model::IncidentState>> cachedIncidentStates_;
};

}  // namespace larkspan::api
