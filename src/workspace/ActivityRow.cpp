#include "workspace/ActivityRow.h"

#include "presentation/text/NameText.h"

namespace larkspan::workspace {

using presentation::Tone;

ActivityRow ActivityRow::of(const model::Incident& incident)
{
    const bool isUpdate = incident.status == model::IncidentStatus::acknowledged;
    return {.id = "incident-" + incident.id,
        .symbol = isUpdate ? "eye.fill" : "exclamationmark.triangle.fill",
        .tone = isUpdate ? Tone::orange : Tone::red,
        .title = presentation::rowTitle(incident.title),
        .caption = isUpdate ? "Incident Update" : "Active Incident"};
}

ActivityRow ActivityRow::of(const model::Maintenance& maintenance)
{
    return {.id = "maintenance-" + maintenance.id,
        .symbol = "wrench.and.screwdriver.fill",
        .tone = Tone::blue,
        .title = presentation::rowTitle(maintenance.title),
        .caption = "Maintenance in Progress"};
}

}  // namespace larkspan::workspace
