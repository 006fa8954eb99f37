#include "core/ChangeNotifications.h"

#include "core/OverallStatus.h"

namespace larkspan::core {

using model::Incident;
using model::Maintenance;
using platform::NotificationRequest;

namespace {

NotificationRequest notification(const Incident& incident)
{
    return {.identifier = "incident-" + incident.id,
        .title = "New Incident",
        .subtitle = incident.title,
        .body = incident.message.value_or("An incident has been reported."),
        .type = "incident",
        .id = incident.id};
}

NotificationRequest notification(const Maintenance& maintenance)
{
    return {.identifier = "maintenance-" + maintenance.id,
        .title = "Scheduled Maintenance",
        .subtitle = maintenance.title,
        .body = maintenance.message.value_or("A maintenance window has been scheduled."),
        .type = "maintenance",
        .id = maintenance.id};
}

template <typename Record>
std::unordered_set<std::string> idsOf(const std::vector<Record>& records)
{
    std::unordered_set<std::string> ids;
    for (const auto& record : records) ids.insert(record.id);
    return ids;
}

template <typename Record, typename IsWorthTelling>
void notifyNew(const std::vector<Record>& records, std::unordered_set<std::string>& known,
    platform::NotificationCenter& center, IsWorthTelling isWorthTelling)
{
    for (const auto& record : records) {
        if (known.insert(record.id).second && isWorthTelling(record)) center.add(notification(record));
    }
}

}  // namespace

void ChangeNotifications::seed(const std::vector<Incident>& incidents, const std::vector<Maintenance>& maintenances)
{
    lastKnownIncidentIds_ = idsOf(incidents);
    lastKnownMaintenanceIds_ = idsOf(maintenances);
}

void ChangeNotifications::notifyNewIncidents(const std::vector<Incident>& incidents)
{
    notifyNew(incidents, lastKnownIncidentIds_, center_,
        [](const Incident& incident) { return incident.status == model::IncidentStatus::active; });
}

void ChangeNotifications::notifyNewMaintenances(const std::vector<Maintenance>& maintenances)
{
    notifyNew(maintenances, lastKnownMaintenanceIds_, center_, isOpen);
}

void ChangeNotifications::clear()
{
    lastKnownIncidentIds_.clear();
    lastKnownMaintenanceIds_.clear();
}

}  // namespace larkspan::core
