#include "maintenances/StatusPageMaintenancesViewModel.h"

#include <utility>

#include "presentation/screens/RecordsOfPage.h"

namespace larkspan::maintenances {

StatusPageMaintenancesViewModel::StatusPageMaintenancesViewModel(
    platform::Executor& main, api::MaintenanceEndpoints& api, std::string page)
    : FetchedList(main, [&api, page] { return presentation::recordsOfPage(api.fetchMaintenances(), page); })
    , pageId(std::move(page))
{
}

}  // namespace larkspan::maintenances
