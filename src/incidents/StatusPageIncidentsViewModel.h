#pragma once

#include <string>

#include "api/IncidentEndpoints.h"
#include "model/records/Incident.h"
#include "presentation/screens/FetchedList.h"

namespace larkspan::incidents {

/// The incidents of one page, fetched independently of the account's cycle.
class StatusPageIncidentsViewModel final : public presentation::FetchedList<model::Incident> {
public:
    StatusPageIncidentsViewModel(platform::Executor& main, api::IncidentEndpoints& api, std::string page);

    const std::string pageId;

    /// The list in the service's order.
    presentation::RecordList<model::Incident>& incidents = records;
};

}  // namespace larkspan::incidents
