#include "stage/Operation.h"

#include <algorithm>

namespace larkspan::campaign {

Subjects Subjects::of(const simulator::Account& account)
{
    const auto open = std::ranges::find_if(account.incidents, [](const auto& incident) { return incident.isOpen(); });
    const auto running
        = std::ranges::find_if(account.monitors, [](const auto& monitor) { return !monitor.isPaused(); });
    const auto paused = std::ranges::find_if(account.monitors, [](const auto& monitor) { return monitor.isPaused(); });
    const auto grouped
        = std::ranges::find_if(account.components, [](const auto& component) { return component.groupId.has_value(); });
    const auto& page = *grouped->statusPageId;
    return {.page = page,
        .incident = open->id,
        .maintenance = account.maintenances.front().id,
        .component = grouped->id,
        .group = *grouped->groupId,
        .monitor = running->id,
        .pausedMonitor = paused->id,
        .schedule = account.staff.schedules.back().id};
}

const std::vector<Operation>& operations()
{
    static const auto all = [] {
        auto both = reads();
        const auto more = writes();
        both.insert(both.end(), more.begin(), more.end());
        return both;
    }();
    return all;
}

}  // namespace larkspan::campaign
