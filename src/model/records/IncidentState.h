#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/json/WireField.h"

namespace larkspan::model {

/// One stage of the account's incident workflow.
struct IncidentState {
    WIRE_FIELD(std::int64_t, id);
    WIRE_FIELD(std::string, stage);
    WIRE_FIELD(std::int64_t, sortOrder);

    bool operator==(const IncidentState&) const = default;
};

/// The account's incident workflow.
struct IncidentStatesEnvelope {
    WIRE_FIELD(std::vector<IncidentState>, incidentStates);

    bool operator==(const IncidentStatesEnvelope&) const = default;
};

}  // namespace larkspan::model
