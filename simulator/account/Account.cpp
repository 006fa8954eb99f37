#include "account/Account.h"

#include <algorithm>

#include "account/HealthWords.h"

namespace larkspan::simulator {

namespace {

template <typename Record>
Record* findById(std::vector<Record>& records, std::string_view id)
{
    const auto found = std::ranges::find(records, id, &Record::id);
    return found == records.end() ? nullptr : &*found;
}

}  // namespace

StatusPage* Account::findPage(std::string_view id)
{
    return findById(statusPages, id);
}

Incident* Account::findIncident(std::string_view id)
{
    return findById(incidents, id);
}

Maintenance* Account::findMaintenance(std::string_view id)
{
    return findById(maintenances, id);
}

ComponentGroup* Account::findComponentGroup(std::string_view id)
{
    return findById(componentGroups, id);
}

Component* Account::findComponent(std::string_view id)
{
    return findById(components, id);
}

Monitor* Account::findMonitor(std::string_view id)
{
    return findById(monitors, id);
}

Team* Account::findTeam(std::string_view id)
{
    return findById(staff.teams, id);
}

OnCallSchedule* Account::findOnCallSchedule(std::string_view id)
{
    return findById(staff.schedules, id);
}

std::string Account::issueId(const std::string& prefix)
{
    return prefix + std::to_string(++issuedIds);
}

void Account::followEvents(const std::optional<std::string>& pageId, support::Time now)
{
    auto* page = pageId ? findPage(*pageId) : nullptr;
    if (!page) return;
    const auto health = healthOf(*pageId);
    page->setHealth(health);
    showHealth(*this, *pageId, health);
    page->updatedAt = now;
}

PageHealth Account::healthOf(std::string_view pageId) const
{
    bool isDegraded = false;
    for (const auto& incident : incidents) {
        if (!incident.isOpen() || incident.statusPageId != pageId) continue;
        if (incident.severityName == "major" || incident.severityName == "critical") return PageHealth::majorOutage;
        isDegraded = true;
    }
    if (isDegraded) return PageHealth::degraded;
    const bool isWorkedOn = std::ranges::any_of(maintenances, [pageId](const Maintenance& maintenance) {
        return maintenance.statusPageId == pageId && maintenance.isUnderWay();
    });
    return isWorkedOn ? PageHealth::maintenance : PageHealth::operational;
}

}  // namespace larkspan::simulator
