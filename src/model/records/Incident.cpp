#include "model/records/Incident.h"

#include "model/json/Decoding.h"

namespace larkspan::model {

/// Any text but the empty one means acknowledged; it need not be a date.
void Incident::readAcknowledgement(Incident& incident, const KeyedValue& acknowledgedAt)
{
    const auto text = acknowledgedAt.optional<std::string_view>();
    incident.acknowledged = text && !text->empty();
}

void Incident::deriveStatus(Incident& incident, const KeyedValue& incidentStateId)
{
    const auto state = incidentStateId.optional<std::string_view>();
    if (state == "4")
        incident.status = IncidentStatus::resolved;
    else if (state == "2" || state == "3" || incident.acknowledged)
        incident.status = IncidentStatus::acknowledged;
    else
        incident.status = IncidentStatus::active;
}

}  // namespace larkspan::model
