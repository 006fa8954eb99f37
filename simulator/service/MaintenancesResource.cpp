#include "service/MaintenancesResource.h"

#include <charconv>

#include "service/WireRecord.h"

namespace larkspan::simulator {

namespace {

Json wireId(const std::string& id)
{
    std::int64_t number = 0;
    const auto* const end = id.data() + id.size();
    const auto [stop, error] = std::from_chars(id.data(), end, number);
    return error == std::errc{} && stop == end ? Json(number) : Json(id);
}

const char* wordFor(MaintenancePhase phase)
{
    switch (phase) {
    case MaintenancePhase::scheduled: return "scheduled";
    case MaintenancePhase::inProgress: return "in_progress";
    case MaintenancePhase::completed: break;
    }
    return "completed";
}

Json wireMaintenance(const Maintenance& maintenance, support::Time now)
{
    return WireRecord()
        .with("id", wireId(maintenance.id))
        .with("title", Json(maintenance.title))
        .with("message", maintenance.message)
        .with("status", Json(maintenance.status.value_or(wordFor(maintenance.phaseAt(now)))))
        .with("start_at", maintenance.startAt)
        .with("started_at", maintenance.startedAt)
        .with("end_at", maintenance.endAt)
        .with("created_at", maintenance.createdAt)
        .with("updated_at", maintenance.updatedAt)
        .with("affected_components", maintenance.affectedComponents)
        .with("affected_monitor_ids", maintenance.affectedMonitorIds)
        .with("status_page_id", maintenance.statusPageId)
        .json();
}

Answer listMaintenances(const Call& call)
{
    Json::Array maintenances;
    for (const auto& maintenance : call.account.maintenances) {
        maintenances.push_back(wireMaintenance(maintenance, call.now));
    }
    return {200, Json(std::move(maintenances))};
}

}  // namespace

void addMaintenancesRoutes(Router& router)
{
    router.add("GET", "/user/api/v1/maintenances", listMaintenances);
}

}  // namespace larkspan::simulator
