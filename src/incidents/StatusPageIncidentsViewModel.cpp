#include "incidents/StatusPageIncidentsViewModel.h"

#include <utility>

namespace larkspan::incidents {

StatusPageIncidentsViewModel::StatusPageIncidentsViewModel(
    platform::Executor& main, api::IncidentEndpoints& api, std::string page)
    : FetchedList(main, [&api, page] { return api.fetchIncidents(page); })
    , pageId(std::move(page))
{
}

}  // namespace larkspan::incidents
