#pragma once

#include <optional>
#include <string>
#include <tuple>

#include "model/json/WireField.h"
#include "model/records/IncidentStatus.h"
#include "support/Time.h"

namespace larkspan::model {

/// An incident of one of the account's pages.
struct Incident {
    WIRE_FIELD(std::string, id);
    /// Derived from the state and the acknowledgement only: an incident that has ended may still be `active`.
    IncidentStatus status = IncidentStatus::active;
    WIRE_FIELD(std::string, title);
    WIRE_FIELD(std::optional<std::string>, message);
    WIRE_FIELD(support::Time, createdAt);
    WIRE_FIELD(std::optional<support::Time>, updatedAt);
    WIRE_FIELD(std::optional<support::Time>, resolvedAt, key("endedAt"));
    bool acknowledged = false;
    WIRE_FIELD(std::optional<std::string>, assignedTo, key("assignedToUserId"));
    WIRE_FIELD(std::optional<std::string>, componentId);
    WIRE_FIELD(std::optional<std::string>, statusPageId);
    WIRE_FIELD(std::optional<std::string>, severityName);
    /// The state's name in the service's words.
    WIRE_FIELD(std::optional<std::string>, incidentState);

    static void readAcknowledgement(Incident& incident, const KeyedValue& acknowledgedAt);
    static void deriveStatus(Incident& incident, const KeyedValue& incidentStateId);
    static constexpr std::tuple derivations{
        derived("acknowledgedAt", &readAcknowledgement),
        derived("incidentStateId", &deriveStatus),
    };

    bool operator==(const Incident&) const = default;
};

}  // namespace larkspan::model
