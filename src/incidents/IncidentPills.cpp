#include "incidents/IncidentPills.h"

#include "incidents/IncidentColors.h"
#include "presentation/text/InPart.h"
#include "support/Capitalized.h"

namespace larkspan::incidents {

using model::Incident;
using model::IncidentStatus;
using presentation::inPart;
using presentation::mostOfAWord;
using presentation::Pill;
using presentation::Tone;

namespace {

const char* statusSymbol(IncidentStatus status)
{
    switch (status) {
    case IncidentStatus::active: return "exclamationmark.triangle.fill";
    case IncidentStatus::acknowledged: return "eye.fill";
    case IncidentStatus::resolved:
    case IncidentStatus::completed: break;
    }
    return "checkmark.seal.fill";
}

}  // namespace

Pill statusPill(const Incident& incident)
{
    return {.text = support::capitalized(rawText(incident.status)), .tone = incidentStatusColor(incident.status)};
}

std::optional<Pill> severityPill(const Incident& incident)
{
    if (!incident.severityName) return std::nullopt;
    return Pill{.text = support::capitalized(inPart(*incident.severityName, mostOfAWord)),
        .tone = severityColor(*incident.severityName)};
}

std::vector<Pill> headerPills(const Incident& incident)
{
    std::vector pills{statusPill(incident)};
    pills.front().symbol = statusSymbol(incident.status);
    if (const auto severity = severityPill(incident)) pills.push_back(*severity);
    if (incident.acknowledged) {
        pills.push_back({.text = "Acknowledged", .tone = Tone::green, .symbol = "checkmark.shield.fill"});
    }
    return pills;
}

}  // namespace larkspan::incidents
