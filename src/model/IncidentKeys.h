#pragma once

#include "model/Decoding.h"
#include "model/Incident.h"
#include "model/KeyTable.h"

namespace larkspan::model {

/// Any text but the empty one acknowledges; it is no date to us.
inline void readAcknowledgement(Incident& incident, const KeyedValue& acknowledgedAt)
{
    const auto text = acknowledgedAt.optional<std::string>();
    incident.acknowledged = text && !text->empty();
}

inline void deriveIncidentStatus(Incident& incident, const KeyedValue& incidentStateId)
{
    const auto state = incidentStateId.optional<std::string>();
    if (state == "4")
        incident.status = IncidentStatus::resolved;
    else if (state == "2" || state == "3" || incident.acknowledged)
        incident.status = IncidentStatus::acknowledged;
    else
        incident.status = IncidentStatus::active;
}

template <>
struct KeyTable<Incident> {
    static constexpr auto rows = std::tuple{
        required("id", &Incident::id),
        required("title", &Incident::title),
        optional("message", &Incident::message),
        required("createdAt", &Incident::createdAt),
        optional("updatedAt", &Incident::updatedAt),
        optional("endedAt", &Incident::resolvedAt),
        derived("acknowledgedAt", &readAcknowledgement),
        optional("assignedToUserId", &Incident::assignedTo),
        optional("componentId", &Incident::componentId),
        optional("statusPageId", &Incident::statusPageId),
        optional("severityName", &Incident::severityName),
        optional("incidentState", &Incident::incidentState),
        derived("incidentStateId", &deriveIncidentStatus),
    };
};

}  // namespace larkspan::model
