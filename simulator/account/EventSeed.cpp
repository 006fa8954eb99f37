#include "account/EventSeed.h"

#include <algorithm>
#include <array>

#include "account/EventTexts.h"

namespace larkspan::simulator {

namespace {

using namespace std::chrono_literals;
using std::chrono::days;

constexpr std::array<const char*, 3> severities{"minor", "major", "critical"};

Incident incidentOf(const StatusPage& page, std::size_t kind, support::Time createdAt)
{
    const auto& text = incidentText(kind);
    Incident incident;
    incident.title = text.title;
    incident.message = text.message;
    incident.createdAt = createdAt;
    incident.updatedAt = createdAt;
    incident.statusPageId = page.id;
    incident.severityName = severities[kind % severities.size()];
    return incident;
}

Incident openIncidentOf(const StatusPage& page, std::size_t kind, support::Time now)
{
    auto incident = incidentOf(page, kind, now - 25min - static_cast<int>(kind % 90) * 1min);
    const bool isDown = page.status == "down";
    incident.severityName = isDown ? "major" : "minor";
    if (!isDown) {
        incident.acknowledgedAt = incident.createdAt + 6min;
        incident.updatedAt = incident.acknowledgedAt;
        incident.stateId = 2;
    }
    return incident;
}

Incident resolvedIncidentOf(const StatusPage& page, std::size_t kind, support::Time now)
{
    const auto age = days(2 + kind % 40) + static_cast<int>(kind % 17) * 53min;
    auto incident = incidentOf(page, kind, now - age);
    incident.acknowledgedAt = incident.createdAt + 4min;
    incident.endedAt = incident.createdAt + 35min + static_cast<int>(kind % 11) * 9min;
    incident.updatedAt = incident.endedAt;
    incident.stateId = 4;
    return incident;
}

Maintenance maintenanceOf(const StatusPage& page, std::size_t kind, support::Time startAt, support::Time createdAt)
{
    const auto& text = maintenanceText(kind);
    Maintenance maintenance;
    maintenance.title = text.title;
    maintenance.message = text.message;
    maintenance.startAt = startAt;
    maintenance.endAt = startAt + 2h + static_cast<int>(kind % 3) * 30min;
    maintenance.createdAt = createdAt;
    maintenance.updatedAt = createdAt;
    maintenance.statusPageId = page.id;
    return maintenance;
}

/// Numbers the records by age and puts the newest first.
template <typename Record>
void arrange(std::vector<Record>& records, const std::string& prefix)
{
    std::ranges::stable_sort(records, {}, &Record::createdAt);
    for (std::size_t index = 0; index < records.size(); ++index) {
        records[index].id = prefix + std::to_string(index + 1);
    }
    std::ranges::reverse(records);
}

}  // namespace

std::vector<Incident> seededIncidents(const std::vector<StatusPage>& pages, support::Time now)
{
    std::vector<Incident> incidents;
    for (std::size_t index = 0; index < pages.size(); ++index) {
        const auto& page = pages[index];
        if (page.status == "down" || page.status == "degraded") incidents.push_back(openIncidentOf(page, index, now));
        const auto past = (index + 1) % 3;
        for (std::size_t one = 0; one < past; ++one) {
            incidents.push_back(resolvedIncidentOf(page, index * 7 + one * 5, now));
        }
    }
    arrange(incidents, "incident-");
    return incidents;
}

std::vector<Maintenance> seededMaintenances(const std::vector<StatusPage>& pages, support::Time now)
{
    std::vector<Maintenance> maintenances;
    for (std::size_t index = 0; index < pages.size(); ++index) {
        const auto& page = pages[index];
        if (page.status == "maintenance") {
            maintenances.push_back(maintenanceOf(page, index, now - 40min, now - days(3)));
        }
        if (index % 2 == 0) {
            const auto start = now - days(5 + index % 30);
            maintenances.push_back(maintenanceOf(page, index + 1, start, start - days(4)));
        }
        if (index % 4 == 3) {
            const auto start = now + days(1 + index % 9) + 3h;
            maintenances.push_back(maintenanceOf(page, index + 2, start, now - 5h - static_cast<int>(index % 50) * 1h));
        }
    }
    for (auto& maintenance : maintenances) {
        maintenance.lastPhase = maintenance.phaseAt(now);
        if (maintenance.lastPhase != MaintenancePhase::scheduled) maintenance.startedAt = maintenance.startAt;
    }
    arrange(maintenances, "");
    return maintenances;
}

}  // namespace larkspan::simulator
