#include "incidents/StatusPageIncidentsViewModel.h"

#include <utility>

namespace larkspan::incidents {

using model::Incident;

StatusPageIncidentsViewModel::StatusPageIncidentsViewModel(
    platform::Executor& main, api::IncidentEndpoints& api, std::string page)
    : FetchedList(main, [&api, page] { return api.fetchIncidents(page); })
    , pageId(std::move(page))
{
}

void StatusPageIncidentsViewModel::insertFirst(Incident incident)
{
    auto patched = *incidents;
    // A load that ran beside its creation may have brought it already.
    std::erase_if(patched, [&incident](const Incident& known) { return known.id == incident.id; });
    patched.insert(patched.begin(), std::move(incident));
    incidents = std::move(patched);
}

}  // namespace larkspan::incidents
