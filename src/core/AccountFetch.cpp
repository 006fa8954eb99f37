#include "core/AccountFetch.h"

#include <exception>
#include <stop_token>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "api/KestruneAPI.h"
#include "support/Child.h"
#include "support/FatalError.h"

namespace larkspan::core {

using model::Incident;
using model::Maintenance;
using model::PageStatusEntry;
using model::StatusPage;
using model::StatusPageStatus;
using support::Child;
using support::Task;

namespace {

StatusPageStatus statusOfCode(std::string_view code)
{
    if (code == "operational") return StatusPageStatus::operational;
    if (code == "degraded") return StatusPageStatus::degraded;
    if (code == "major-outage") return StatusPageStatus::down;
    if (code == "maintenance") return StatusPageStatus::maintenance;
    return StatusPageStatus::unknown;
}

Task<std::vector<StatusPage>> withOverview(api::KestruneAPI& api, std::vector<StatusPage> pages)
{
    std::vector<PageStatusEntry> entries;
    try {
        auto fetching = api.fetchStatusPageStatuses();
        entries = co_await std::move(fetching);
    } catch (...) {
        // The overview only refines the status of the pages, so its failure does not fail the cycle.
        co_return pages;
    }
    co_return mergedPages(std::move(pages), entries);
}

Task<AccountLists> withIncidentsAndMaintenances(api::KestruneAPI& api, platform::Executor& main, AccountLists lists)
{
    std::stop_source stop;
    Child<std::vector<Incident>> incidents(main, api.fetchIncidents());
    Child<std::vector<Maintenance>> maintenances(main, api.fetchMaintenances(stop.get_token()));

    std::exception_ptr failure;
    try {
        auto awaitingIncidents = incidents.result();
        lists.incidents = co_await std::move(awaitingIncidents);
    } catch (...) {
        failure = std::current_exception();
    }
    if (failure) {
        // The incidents' error is the one to show, so the other fetch must end before it is rethrown.
        stop.request_stop();
        auto ending = maintenances.settled();
        co_await std::move(ending);
        std::rethrow_exception(failure);
    }
    auto awaitingMaintenances = maintenances.result();
    lists.maintenances = co_await std::move(awaitingMaintenances);
    co_return lists;
}

}  // namespace

std::vector<StatusPage> mergedPages(std::vector<StatusPage> pages, const std::vector<PageStatusEntry>& entries)
{
    std::unordered_map<std::string_view, StatusPageStatus> statuses;
    statuses.reserve(entries.size());
    for (const auto& entry : entries) {
        if (!statuses.emplace(entry.id, statusOfCode(entry.status.code)).second) {
            support::fatalError("Duplicate values for key: '" + entry.id + "'");
        }
    }
    for (auto& page : pages) {
        if (const auto found = statuses.find(page.id); found != statuses.end()) page.status = found->second;
    }
    return pages;
}

Task<AccountLists> fetchAccount(api::KestruneAPI& api, platform::Executor& main)
{
    AccountLists lists;
    auto fetchingPages = api.fetchStatusPages();
    lists.statusPages = co_await std::move(fetchingPages);
    auto fetchingRecords = withIncidentsAndMaintenances(api, main, std::move(lists));
    lists = co_await std::move(fetchingRecords);
    auto merging = withOverview(api, std::move(lists.statusPages));
    lists.statusPages = co_await std::move(merging);
    co_return lists;
}

}  // namespace larkspan::core
