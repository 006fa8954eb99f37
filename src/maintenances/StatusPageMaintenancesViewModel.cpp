#include "maintenances/StatusPageMaintenancesViewModel.h"

#include <utility>

namespace larkspan::maintenances {

using model::Maintenance;
using support::Task;

StatusPageMaintenancesViewModel::StatusPageMaintenancesViewModel(
    platform::Executor& main, api::MaintenanceEndpoints& api, std::string page)
    : FetchedList(main, [&api, page] { return fetchOfPage(&api, page); })
    , pageId(std::move(page))
{
}

Task<std::vector<Maintenance>> StatusPageMaintenancesViewModel::fetchOfPage(
    api::MaintenanceEndpoints* api, std::string page)
{
    auto fetching = api->fetchMaintenances();
    std::vector<Maintenance> all = co_await std::move(fetching);
    std::erase_if(all, [&page](const Maintenance& each) { return each.statusPageId != page; });
    co_return all;
}

}  // namespace larkspan::maintenances
