#include "core/OverallStatus.h"

#include <algorithm>

namespace larkspan::core {

using model::StatusPage;
using model::StatusPageStatus;

namespace {

OverallStatus worstStatus(const std::vector<StatusPage>& pages)
{
    const auto hasPage = [&pages](StatusPageStatus status) {
        return std::ranges::find(pages, status, &StatusPage::status) != pages.end();
    };
    if (hasPage(StatusPageStatus::down)) return OverallStatus::down;
    if (hasPage(StatusPageStatus::degraded)) return OverallStatus::degraded;
    if (hasPage(StatusPageStatus::maintenance)) return OverallStatus::maintenance;
    if (hasPage(StatusPageStatus::operational)) return OverallStatus::operational;
    return OverallStatus::unknown;
}

}  // namespace

std::string_view rawValue(OverallStatus status)
{
    switch (status) {
    case OverallStatus::operational: return "Operational";
    case OverallStatus::degraded: return "Degraded";
    case OverallStatus::down: return "Down";
    case OverallStatus::maintenance: return "Maintenance";
    case OverallStatus::stale: return "Stale";
    case OverallStatus::unknown: break;
    }
    return "Unknown";
}

OverallStatus rolledUpStatus(const std::vector<StatusPage>& pages, bool hasRefreshError)
{
    if (pages.empty()) return hasRefreshError ? OverallStatus::stale : OverallStatus::unknown;
    const auto worst = worstStatus(pages);
    return hasRefreshError && worst != OverallStatus::down ? OverallStatus::stale : worst;
}

}  // namespace larkspan::core
