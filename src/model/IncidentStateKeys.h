#pragma once

#include "model/IncidentState.h"
#include "model/KeyTable.h"

namespace larkspan::model {

template <>
struct KeyTable<IncidentState> {
    static constexpr auto rows = std::tuple{
        required("id", &IncidentState::id),
        required("stage", &IncidentState::stage),
        required("sortOrder", &IncidentState::sortOrder),
    };
};

template <>
struct KeyTable<IncidentStatesEnvelope> {
    static constexpr auto rows = std::tuple{
        required("incidentStates", &IncidentStatesEnvelope::incidentStates),
    };
};

}  // namespace larkspan::model
