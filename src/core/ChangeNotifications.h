#pragma once

#include <string>
#include <unordered_set>
#include <vector>

#include "model/records/Incident.h"
#include "model/records/Maintenance.h"
#include "platform/NotificationCenter.h"

namespace larkspan::core {

/// Tells the user of incidents and maintenances not seen before. Records are told apart by id alone, so a change
/// of a known one raises nothing; ids are never forgotten, so one that comes back raises nothing either.
class ChangeNotifications {
public:
    explicit ChangeNotifications(platform::NotificationCenter& center)
        : center_(center)
    {
    }

    /// Takes what exists for known, in place of all that was, and raises nothing.
    void seed(const std::vector<model::Incident>& incidents, const std::vector<model::Maintenance>& maintenances);

    /// Raises a notification for each new incident that is active.
    void notifyNewIncidents(const std::vector<model::Incident>& incidents);

    /// Raises a notification for each new maintenance that is scheduled or in progress.
    void notifyNewMaintenances(const std::vector<model::Maintenance>& maintenances);

    /// Knows nothing any more.
    void clear();

private:
    platform::NotificationCenter& center_;
    std::unordered_set<std::string> lastKnownIncidentIds_;
    std::unordered_set<std::string> lastKnownMaintenanceIds_;
};

}  // namespace larkspan::core
