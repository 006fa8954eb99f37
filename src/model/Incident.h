#pragma once

#include <optional>
#include <string>

#include "model/IncidentStatus.h"
#include "support/Time.h"

namespace larkspan::model {

/// An incident of one of the account's pages.
struct Incident {
    std::string id{};
    /// From the state and the acknowledgement alone: an incident that has ended may still be `active`.
    IncidentStatus status = IncidentStatus::active;
    std::string title{};
    std::optional<std::string> message{};
    support::Time createdAt{};
    std::optional<support::Time> updatedAt{};
    std::optional<support::Time> resolvedAt{};
    bool acknowledged = false;
    std::optional<std::string> assignedTo{};
    std::optional<std::string> componentId{};
    std::optional<std::string> statusPageId{};
    std::optional<std::string> severityName{};
    /// The state's name as the service words it.
    std::optional<std::string> incidentState{};

    bool operator==(const Incident&) const = default;
};

}  // namespace larkspan::model
