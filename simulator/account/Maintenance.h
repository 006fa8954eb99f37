#pragma once

#include <optional>
#include <string>

#include "support/Time.h"

namespace larkspan::simulator {

enum class MaintenancePhase { scheduled, inProgress, completed };

struct Maintenance {
    /// The phase by the maintenance's dates; without an end it stays in progress.
    MaintenancePhase phaseAt(support::Time now) const;

    /// Whether the maintenance was in progress when the account was last read.
    bool isUnderWay() const { return lastPhase == MaintenancePhase::inProgress; }

    /// An id of digits only is sent as a number, as the service does.
    std::string id;
    std::string title;
    std::optional<std::string> message;
    /// The word that is sent instead of the one for its phase.
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
    /// The phase when the account was last read.
    MaintenancePhase lastPhase = MaintenancePhase::scheduled;
};

}  // namespace larkspan::simulator
