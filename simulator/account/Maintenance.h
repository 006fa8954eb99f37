#pragma once

#include <optional>
#include <string>

#include "support/Time.h"

namespace larkspan::simulator {

enum class MaintenancePhase { scheduled, inProgress, completed };

struct Maintenance {
    /// Where the maintenance stands by its dates; without an end it goes on.
    MaintenancePhase phaseAt(support::Time now) const;

    /// When the account was last looked at.
    bool isUnderWay() const { return lastPhase == MaintenancePhase::inProgress; }

    /// Digits alone travel as a number, as the service's own ids do.
    std::string id;
    std::string title;
    std::optional<std::string> message;
    /// The word sent in place of the one for its phase.
    std::optional<std::string> status;
    std::optional<support::Time> startAt;
    std::optional<support::Time> startedAt;
    std::optional<support::Time> endAt;
    std::optional<support::Time> createdAt;
    std::optional<support::Time> updatedAt;
    /// Ids joined with ",".
    std::optional<std::string> affectedComponents;
    std::optional<std::string> affectedMonitorIds;
    std::optional<std::string> statusPageId;
    /// Where it stood when the account was last looked at.
    MaintenancePhase lastPhase = MaintenancePhase::scheduled;
};

}  // namespace larkspan::simulator
