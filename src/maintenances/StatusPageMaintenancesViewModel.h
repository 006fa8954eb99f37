#pragma once

#include <string>

#include "api/MaintenanceEndpoints.h"
#include "model/records/Maintenance.h"
#include "presentation/screens/FetchedList.h"

namespace larkspan::maintenances {

/// The maintenances of one page, selected from the account's list.
class StatusPageMaintenancesViewModel final : public presentation::FetchedList<model::Maintenance> {
public:
    StatusPageMaintenancesViewModel(platform::Executor& main, api::MaintenanceEndpoints& api, std::string page);

    const std::string pageId;

    /// The list in the service's order.
    presentation::RecordList<model::Maintenance>& maintenances = records;
};

}  // namespace larkspan::maintenances
