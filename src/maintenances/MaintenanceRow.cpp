#include "maintenances/MaintenanceRow.h"

#include "maintenances/MaintenanceStatus.h"
#include "presentation/text/NameText.h"

namespace larkspan::maintenances {

MaintenanceRow MaintenanceRow::of(const model::Maintenance& maintenance, const platform::LocaleText& locale)
{
    return {.id = maintenance.id,
        .title = presentation::rowTitle(maintenance.title),
        .status = statusPill(maintenance.status),
        .date = maintenance.scheduledFor ? locale.dateOnly(*maintenance.scheduledFor) : ""};
}

}  // namespace larkspan::maintenances
