#pragma once

#include <string>
#include <vector>

#include "api/MaintenanceEndpoints.h"
#include "model/Maintenance.h"
#include "presentation/FetchedList.h"

namespace larkspan::maintenances {

/// The maintenances of one page. The service lists those of the whole account, so the others are dropped here.
class StatusPageMaintenancesViewModel final : public presentation::FetchedList<model::Maintenance> {
public:
    StatusPageMaintenancesViewModel(platform::Executor& main, api::MaintenanceEndpoints& api, std::string page);

    const std::string pageId;

    /// The list, in the order in which the service gave it.
    support::Published<std::vector<model::Maintenance>>& maintenances = records;

private:
    static support::Task<Records> fetchOfPage(api::MaintenanceEndpoints* api, std::string page);
};

}  // namespace larkspan::maintenances
