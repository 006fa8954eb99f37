#include "account/MaintenanceCalendar.h"

namespace larkspan::simulator {

namespace {

void enterPhase(Account& account, Maintenance& maintenance, support::Time now)
{
    const bool wasUnderWay = maintenance.isUnderWay();
    maintenance.lastPhase = maintenance.phaseAt(now);
    const bool hasStarted = maintenance.lastPhase != MaintenancePhase::scheduled;
    maintenance.startedAt = hasStarted ? maintenance.startAt : std::nullopt;
    if (maintenance.isUnderWay() != wasUnderWay) account.followEvents(maintenance.statusPageId, now);
}

}  // namespace

Maintenance& schedule(Account& account, Maintenance draft, support::Time now)
{
    draft.id = account.issueId("");
    draft.createdAt = now;
    const auto placed = account.maintenances.insert(account.maintenances.begin(), std::move(draft));
    amended(account, *placed, now);
    return *placed;
}

void amended(Account& account, Maintenance& maintenance, support::Time now)
{
    maintenance.updatedAt = now;
    enterPhase(account, maintenance, now);
}

void removeMaintenance(Account& account, const Maintenance& maintenance, support::Time now)
{
    const bool wasUnderWay = maintenance.isUnderWay();
    const auto page = maintenance.statusPageId;
    account.maintenances.erase(account.maintenances.begin() + (&maintenance - account.maintenances.data()));
    if (wasUnderWay) account.followEvents(page, now);
}

void updateMaintenancePhases(Account& account, support::Time now)
{
    for (auto& maintenance : account.maintenances) {
        if (maintenance.phaseAt(now) != maintenance.lastPhase) enterPhase(account, maintenance, now);
    }
}

}  // namespace larkspan::simulator
