#include "maintenances/MaintenanceRow.h"

#include "maintenances/MaintenanceStatus.h"

namespace larkspan::maintenances {

MaintenanceRow MaintenanceRow::of(const model::Maintenance& maintenance, const platform::LocaleText& locale)
{
    return {.id = maintenance.id,
        .title = maintenance.title,
        .status = statusPill(maintenance.status),
        .date = maintenance.scheduledFor ? locale.dateOnly(*maintenance.scheduledFor) : ""};
}

}  // namespace larkspan::maintenances
