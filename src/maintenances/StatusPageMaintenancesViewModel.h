#pragma once

#include <string>

#include "api/MaintenanceEndpoints.h"
#include "model/records/Maintenance.h"
#include "presentation/screens/FetchedList.h"

namespace larkspan::maintenances {

/// The maintenances of one page, of those of the whole account that the service lists.
class StatusPageMaintenancesViewModel final : public presentation::FetchedList<model::Maintenance> {
public:
    StatusPageMaintenancesViewModel(platform::Executor& main, api::MaintenanceEndpoints& api, std::string page);

    const std::string pageId;

    /// The list, in the order in which the service gave it.
    presentation::RecordList<model::Maintenance>& maintenances = records;
};

}  // namespace larkspan::maintenances
