#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace larkspan::model {

/// One stage of the account's incident workflow.
struct IncidentState {
    std::int64_t id = 0;
    std::string stage{};
    std::int64_t sortOrder = 0;

    bool operator==(const IncidentState&) const = default;
};

/// The account's incident workflow.
struct IncidentStatesEnvelope {
    std::vector<IncidentState> incidentStates{};

    bool operator==(const IncidentStatesEnvelope&) const = default;
};

}  // namespace larkspan::model
