#include "maintenances/MaintenanceStatus.h"

#include "presentation/text/InPart.h"
#include "support/Capitalized.h"

namespace larkspan::maintenances {

using presentation::Tone;

std::string maintenanceStatusLabel(std::string_view status)
{
    if (status == scheduled) return "Scheduled";
    if (status == inProgress) return "In Progress";
    if (status == completed) return "Completed";
    return support::capitalized(presentation::inPart(status, presentation::mostOfAWord));
}

Tone maintenanceStatusColor(std::string_view status)
{
    if (status == scheduled) return Tone::blue;
    if (status == inProgress) return Tone::yellow;
    if (status == completed) return Tone::green;
    return Tone::gray;
}

presentation::Pill statusPill(std::string_view status)
{
    return {.text = maintenanceStatusLabel(status), .tone = maintenanceStatusColor(status)};
}

}  // namespace larkspan::maintenances
