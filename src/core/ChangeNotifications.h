#pragma once

#include <string>
#include <unordered_set>
#include <vector>

#include "model/records/Incident.h"
#include "model/records/Maintenance.h"
#include "platform/NotificationCenter.h"

namespace larkspan::core {

/// Notifies the user of incidents and maintenances that were not seen before. Records are compared by id only, so a
/// change of a known one raises nothing; ids are never forgotten, so a record that reappears raises nothing either.
class ChangeNotifications {
public:
    explicit ChangeNotifications(platform::NotificationCenter& center)
        : center_(center)
    {
    }

    /// Replaces the known records by these, and raises nothing.
    void seed(const std::vector<model::Incident>& incidents, const std::vector<model::Maintenance>& maintenances);

    /// Raises a notification for each new incident that is active.
    void notifyNewIncidents(const std::vector<model::Incident>& incidents);

    /// Raises a notification for each new maintenance that is scheduled or in progress.
    void notifyNewMaintenances(const std::vector<model::Maintenance>& maintenances);

    /// Forgets all records.
    void clear();

private:
    platform::NotificationCenter& center_;
    std::unordered_set<std::string> lastKnownIncidentIds_;
    std::unordered_set<std::string> lastKnownMaintenanceIds_;
};

}  // namespace larkspan::core
