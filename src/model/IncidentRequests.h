#pragma once

#include <optional>
#include <string>

namespace larkspan::model {

struct CreateIncidentRequest {
    std::string title{};
    std::optional<std::string> message{};
    std::optional<std::string> statusPageId{};
    std::optional<std::string> componentId{};
    std::optional<std::string> monitorId{};
    bool notifySubscribers = false;

    bool operator==(const CreateIncidentRequest&) const = default;
};

/// Adds to an incident's timeline and, with a state, moves the incident there.
struct AppendIncidentUpdateRequest {
    std::optional<std::string> message{};
    /// The decimal text of `IncidentState::id`.
    std::optional<std::string> incidentStateId{};
    bool appendUpdate = true;

    bool operator==(const AppendIncidentUpdateRequest&) const = default;
};

}  // namespace larkspan::model
