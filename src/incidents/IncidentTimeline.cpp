#include "incidents/IncidentTimeline.h"

#include "presentation/time/DurationText.h"

namespace larkspan::incidents {

using presentation::timelineRow;
using presentation::TimelineRow;

std::vector<TimelineRow> incidentTimeline(const model::Incident& incident, const platform::LocaleText& locale)
{
    std::vector rows{timelineRow("plus.circle", "Created", incident.createdAt, locale)};
    if (incident.updatedAt) {
        rows.push_back(timelineRow("arrow.triangle.2.circlepath", "Updated", *incident.updatedAt, locale));
    }
    if (incident.resolvedAt) {
        rows.push_back(timelineRow("checkmark.circle", "Resolved", *incident.resolvedAt, locale));
    }
    return rows;
}

std::string incidentDuration(const model::Incident& incident, support::Time now)
{
    return presentation::durationText(incident.createdAt, incident.resolvedAt.value_or(now));
}

}  // namespace larkspan::incidents
