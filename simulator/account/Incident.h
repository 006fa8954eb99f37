#pragma once

#include <optional>
#include <string>
#include <vector>

#include "support/Time.h"

namespace larkspan::simulator {

/// One stage of an account's incident workflow. An incident starts in the first one and ends in the last one.
struct IncidentState {
    int id = 0;
    std::string stage;
    int sortOrder = 0;
};

/// The default stages of an account: Investigating, Identified, Monitoring, Resolved.
std::vector<IncidentState> ordinaryIncidentStates();

struct Incident {
    bool isOpen() const { return !endedAt; }

    std::string id;
    std::string title;
    std::optional<std::string> message;
    support::Time createdAt;
    std::optional<support::Time> updatedAt;
    std::optional<support::Time> endedAt;
    std::optional<support::Time> acknowledgedAt;
    std::optional<std::string> assignedToUserId;
    std::optional<std::string> componentId;
    std::optional<std::string> statusPageId;
    /// "minor", "major" or "critical".
    std::optional<std::string> severityName;
    int stateId = 1;
};

}  // namespace larkspan::simulator
