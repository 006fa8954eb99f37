#pragma once

#include <stop_token>
#include <string>
#include <vector>

#include "api/MaintenanceArguments.h"
#include "support/Task.h"

namespace larkspan::model {

struct Maintenance;

}  // namespace larkspan::model

namespace larkspan::api {

class RequestEngine;

/// The operations on the account's maintenances.
class MaintenanceEndpoints {
public:
    explicit MaintenanceEndpoints(RequestEngine& engine);

    /// The maintenances of the whole account, in the service's order.
    support::Task<std::vector<model::Maintenance>> fetchMaintenances(std::stop_token stop = {});
    support::Task<model::Maintenance> fetchMaintenance(std::string id);
    support::Task<model::Maintenance> createMaintenance(NewMaintenance arguments);
    support::Task<model::Maintenance> updateMaintenance(std::string id, MaintenanceChanges arguments);
    support::Task<void> deleteMaintenance(std::string id);

private:
    RequestEngine& engine_;
};

}  // namespace larkspan::api
