#include "incidents/IncidentRow.h"

#include "incidents/IncidentColors.h"
#include "incidents/IncidentPills.h"
#include "presentation/text/NameText.h"

namespace larkspan::incidents {

IncidentRow IncidentRow::of(const model::Incident& incident, const platform::LocaleText& locale)
{
    return {.id = incident.id,
        .title = presentation::rowTitle(incident.title),
        .tone = incidentStatusColor(incident.status),
        .severity = severityPill(incident),
        .date = locale.dateOnly(incident.createdAt),
        .status = statusPill(incident)};
}

}  // namespace larkspan::incidents
