#pragma once

#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include "api/MaintenanceArguments.h"
#include "model/Incident.h"
#include "model/IncidentRequests.h"
#include "model/IncidentState.h"
#include "model/JSONDecoder.h"
#include "model/JSONEncoder.h"
#include "model/Maintenance.h"
#include "model/StatusPage.h"
#include "model/StatusPagesStatusEnvelope.h"
#include "platform/Clock.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/HttpTransport.h"
#include "support/Task.h"

namespace larkspan::api {

/// The program's only road to the service. Its operations may be awaited from any executor; they work on the
/// client's own and interleave there while they wait. They throw `APIError`, `platform::URLError` or
/// `model::DecodingError`, and nothing is ever sent twice. It must outlive every task that it gave.
class KestruneAPI {
public:
    struct Ports {
        platform::Executor& executor;
        platform::HttpTransport& transport;
        platform::CredentialStore& credentials;
        const platform::Clock& clock;
    };

    enum class Base { v1, feature };

    /// One request as an operation words it. `path` may start with "/" and may hold a query; `body` is JSON.
    struct Call {
        Base base = Base::v1;
        std::string method = "GET";
        std::string path;
        std::optional<std::string> body = {};
    };

    /// `serviceHost` is a host or host:port and is reached over HTTPS.
    KestruneAPI(Ports ports, const std::string& serviceHost);

    /// The send under every operation: signed with the stored key, checked and decoded in either result shape.
    /// `T` is one of the decoder's result types.
    template <typename T>
    support::Task<T> sendRequest(Call call, std::stop_token stop = {});

    /// A GET that gives the body undecoded, for results with shapes of their own.
    support::Task<std::string> sendRawRequest(Base base, std::string path, std::stop_token stop = {});

    // Status pages
    support::Task<std::vector<model::StatusPage>> fetchStatusPages(std::stop_token stop = {});
    support::Task<std::vector<model::PageStatusEntry>> fetchStatusPageStatuses(std::stop_token stop = {});

    /// Ends if the service accepts `key`, which needs not be the stored one; else throws what a request would.
    support::Task<void> validateAPIKey(std::string key, std::stop_token stop = {});

    // Incidents
    /// Those of one page; of the whole account if `statusPageId` is absent or empty. As the service lists them.
    support::Task<std::vector<model::Incident>> fetchIncidents(
        std::optional<std::string> statusPageId = {}, std::stop_token stop = {});
    support::Task<model::Incident> fetchIncident(std::string id);
    support::Task<model::Incident> createIncident(model::CreateIncidentRequest request);
    /// Adds `message` to the timeline; the state stays.
    support::Task<model::Incident> updateIncident(std::string id, std::string message);
    support::Task<model::Incident> appendIncidentUpdate(
        std::string id, std::optional<std::string> message, std::optional<std::string> incidentStateId);
    support::Task<void> acknowledgeIncident(std::string id);
    support::Task<void> escalateIncident(std::string id);
    /// The account's workflow, asked for once and then kept as long as the program runs.
    support::Task<std::vector<model::IncidentState>> fetchIncidentStates();
    /// Moves the incident into the first state of the workflow that is called "Resolved", in any case of letters.
    support::Task<model::Incident> resolveIncident(std::string id);
    support::Task<void> deleteIncident(std::string id);

    // Maintenances
    /// Those of the whole account, as the service lists them.
    support::Task<std::vector<model::Maintenance>> fetchMaintenances(std::stop_token stop = {});
    support::Task<model::Maintenance> fetchMaintenance(std::string id);
    support::Task<model::Maintenance> createMaintenance(NewMaintenance arguments);
    support::Task<model::Maintenance> updateMaintenance(std::string id, MaintenanceChanges arguments);
    support::Task<void> deleteMaintenance(std::string id);

private:
    platform::HttpRequest preparedRequest(const Call& call) const;
    std::string storedKey() const;

    // Tasks that run on the client's executor; the public operations send them there.
    support::Task<std::string> exchange(platform::HttpRequest request, std::stop_token stop);
    support::Task<std::string> send(Call call, std::stop_token stop);
    template <typename T>
    support::Task<T> sendAndDecode(Call call, std::stop_token stop);
    template <typename T, typename Record>
    support::Task<T> sendRecord(Call call, Record body);
    support::Task<void> sendForNothing(Call call);
    support::Task<std::vector<model::IncidentState>> incidentStates();
    support::Task<model::Incident> resolve(std::string id);
    support::Task<std::vector<model::PageStatusEntry>> statusPageStatuses(std::stop_token stop);
    support::Task<void> validate(std::string key, std::stop_token stop);

    const std::string baseURL_;
    const std::string featureBaseURL_;
    const Ports ports_;
    const model::JSONDecoder decoder_;
    const model::JSONEncoder encoder_{};
    // Of the client's executor, as the key and every request are.
    std::optional<std::vector<model::IncidentState>> cachedIncidentStates_;
};

}  // namespace larkspan::api
