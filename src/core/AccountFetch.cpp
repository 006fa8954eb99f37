#include "core/AccountFetch.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "support/FatalError.h"

namespace larkspan::core {

using model::PageStatusEntry;
using model::StatusPage;
using model::StatusPageStatus;
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
        // The overview only refines what the pages say themselves, so its loss is no failure of the cycle.
        co_return pages;
    }
    co_return mergedPages(std::move(pages), entries);
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

Task<AccountLists> fetchAccount(api::KestruneAPI& api)
{
    auto fetching = api.fetchStatusPages();
    auto pages = co_await std::move(fetching);
    auto merging = withOverview(api, std::move(pages));
    AccountLists lists;
    lists.statusPages = co_await std::move(merging);
    co_return lists;
}

}  // namespace larkspan::core
