#include "account/Maintenance.h"

namespace larkspan::simulator {

MaintenancePhase Maintenance::phaseAt(support::Time now) const
{
    if (endAt && *endAt <= now) return MaintenancePhase::completed;
    const auto start = startAt ? startAt : startedAt;
    return start && *start <= now ? MaintenancePhase::inProgress : MaintenancePhase::scheduled;
}

}  // namespace larkspan::simulator
