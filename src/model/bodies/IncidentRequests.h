#pragma once

#include <optional>
#include <string>

#include "model/json/WireField.h"

namespace larkspan::model {

struct CreateIncidentRequest {
    WIRE_FIELD(std::string, title);
    WIRE_FIELD(std::optional<std::string>, message);
    WIRE_FIELD(std::optional<std::string>, statusPageId);
    WIRE_FIELD(std::optional<std::string>, componentId);
    WIRE_FIELD(std::optional<std::string>, monitorId);
    WIRE_FIELD(bool, notifySubscribers);

    bool operator==(const CreateIncidentRequest&) const = default;
};

/// Adds an update to an incident's timeline and, if a state is given, moves the incident to it.
struct AppendIncidentUpdateRequest {
    WIRE_FIELD(std::optional<std::string>, message);
    /// The decimal text of `IncidentState::id`.
    WIRE_FIELD(std::optional<std::string>, incidentStateId);
    WIRE_FIELD(bool, appendUpdate, otherwise(true));

    bool operator==(const AppendIncidentUpdateRequest&) const = default;
};

}  // namespace larkspan::model
