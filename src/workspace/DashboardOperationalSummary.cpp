#include "workspace/DashboardOperationalSummary.h"

#include <algorithm>

namespace larkspan::workspace {

using core::OverallStatus;
using presentation::Tone;

namespace {

template <typename Records, typename Predicate>
int count(const Records& records, Predicate predicate)
{
    return static_cast<int>(std::ranges::count_if(records, predicate));
}

std::string counted(int count, std::string_view noun)
{
    return std::to_string(count) + ' ' + std::string(noun) + (count == 1 ? "" : "s");
}

DashboardOperationalSummary counted(const std::vector<model::StatusPage>& pages,
    const std::vector<model::Incident>& incidents, const std::vector<model::Maintenance>& maintenances)
{
    const auto maintenancesWith = [&maintenances](std::string_view status) {
        return count(maintenances, [status](const auto& maintenance) { return core::hasStatus(maintenance, status); });
    };
    return {
        .statusPageCount = static_cast<int>(pages.size()),
        .affectedPageCount
        = count(pages, [](const auto& page) { return page.status != model::StatusPageStatus::operational; }),
        .activeIncidentCount = count(incidents, core::isActive),
        .activeMaintenanceCount = maintenancesWith("in_progress"),
        .scheduledMaintenanceCount = maintenancesWith("scheduled"),
    };
}

}  // namespace

DashboardOperationalSummary DashboardOperationalSummary::of(const core::AppStateManager& state)
{
    auto summary = counted(*state.statusPages, *state.incidents, *state.maintenances);
    summary.overallStatus = *state.overallStatus;
    summary.isStale = *state.refreshError != nullptr || !*state.isReachable;
    return summary;
}

DashboardOperationalSummary DashboardOperationalSummary::of(const core::AccountLists& lists)
{
    auto summary = counted(lists.statusPages, lists.incidents, lists.maintenances);
    summary.overallStatus = core::rolledUpStatus(lists.statusPages, lists.incidents, lists.maintenances, false);
    return summary;
}

std::string DashboardOperationalSummary::operationalTitle() const
{
    const auto byPages = [this](std::string_view none, std::string_view one, std::string_view several) -> std::string {
        if (affectedPageCount < 1) return std::string(none);
        return affectedPageCount == 1 ? "1 Status Page " + std::string(one)
                                      : std::to_string(affectedPageCount) + " Status Pages " + std::string(several);
    };
    if (isStale) return "Status may be stale";
    switch (overallStatus) {
    case OverallStatus::operational: return "All systems operational";
    case OverallStatus::degraded: return byPages("An incident is being investigated", "is degraded", "are degraded");
    case OverallStatus::down:
        return byPages("An active incident requires attention", "requires attention", "require attention");
    case OverallStatus::maintenance:
        return activeMaintenanceCount < 1 ? "Maintenance scheduled" : "Maintenance in progress";
    case OverallStatus::stale: return "Status may be stale";
    case OverallStatus::unknown: break;
    }
    return "Status is unknown";
}

std::vector<std::string> DashboardOperationalSummary::operationalDetails() const
{
    std::vector<std::string> details{counted(statusPageCount, "Status Page")};
    if (activeIncidentCount >= 1) details.push_back(counted(activeIncidentCount, "active incident"));
    if (activeMaintenanceCount >= 1) {
        details.push_back(std::to_string(activeMaintenanceCount) + " maintenance in progress");
    } else if (scheduledMaintenanceCount >= 1) {
        details.push_back(std::to_string(scheduledMaintenanceCount) + " maintenance scheduled");
    }
    const bool isQuiet = activeIncidentCount == 0 && activeMaintenanceCount == 0 && scheduledMaintenanceCount == 0;
    if (isQuiet && !isStale && overallStatus == OverallStatus::operational) details.emplace_back("No active incidents");
    return details;
}

std::string_view DashboardOperationalSummary::symbolName() const
{
    return isStale ? "exclamationmark.icloud.fill" : statusSymbolName(overallStatus);
}

Tone DashboardOperationalSummary::tone() const
{
    if (isStale) return Tone::orange;
    switch (overallStatus) {
    case OverallStatus::operational: return Tone::green;
    case OverallStatus::degraded:
    case OverallStatus::maintenance: return Tone::orange;
    case OverallStatus::down: return Tone::red;
    case OverallStatus::stale:
    case OverallStatus::unknown: break;
    }
    return Tone::secondary;
}

presentation::Headline DashboardOperationalSummary::headline() const
{
    std::string line;
    for (const auto& detail : operationalDetails()) line += (line.empty() ? "" : " · ") + detail;
    return {
        .symbol = std::string(symbolName()), .tone = tone(), .title = operationalTitle(), .details = std::move(line)};
}

}  // namespace larkspan::workspace
