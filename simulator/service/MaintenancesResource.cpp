#include "account/MaintenanceCalendar.h"
#include "service/Known.h"
#include "service/RequestBody.h"
#include "service/Resources.h"
#include "service/Router.h"
#include "service/WireRecord.h"

namespace larkspan::simulator {

namespace {

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
    return wireRecord({
        {"id", wireId(maintenance.id)},
        {"title", maintenance.title},
        {"message", maintenance.message},
        {"status", maintenance.status.value_or(wordFor(maintenance.phaseAt(now)))},
        {"start_at", maintenance.startAt},
        {"started_at", maintenance.startedAt},
        {"end_at", maintenance.endAt},
        {"created_at", maintenance.createdAt},
        {"updated_at", maintenance.updatedAt},
        {"affected_components", maintenance.affectedComponents},
        {"affected_monitor_ids", maintenance.affectedMonitorIds},
        {"status_page_id", maintenance.statusPageId},
    });
}

Answer listMaintenances(const Call& call)
{
    return ok(wireList(call.account.maintenances,
        [&call](const Maintenance& maintenance) { return wireMaintenance(maintenance, call.now); }));
}

Maintenance& named(const Call& call)
{
    return known(call.account.findMaintenance(call.wildcards.front()));
}

void refuseEndBeforeStart(const Maintenance& maintenance)
{
    if (maintenance.startAt && maintenance.endAt && *maintenance.endAt < *maintenance.startAt) {
        throw Refusal(422, "The end lies before the start.");
    }
}

Answer createMaintenance(const Call& call)
{
    const RequestBody body(call.request);
    Maintenance draft;
    draft.title = body.requiredTextNotBlank("title");
    draft.message = body.text("message");
    draft.statusPageId = knownPage(call.account, body.requiredText("status_page_id"));
    draft.startAt = body.requiredDate("start_at");
    draft.endAt = body.requiredDate("end_at");
    draft.affectedComponents = body.text("affected_components");
    draft.affectedMonitorIds = body.text("affected_monitor_ids");
    refuseEndBeforeStart(draft);
    return {201, wireMaintenance(schedule(call.account, std::move(draft), call.now), call.now)};
}

Answer updateMaintenance(const Call& call)
{
    auto& maintenance = named(call);
    const RequestBody body(call.request);
    auto changed = maintenance;
    if (const auto title = body.textNotBlank("title")) changed.title = *title;
    if (const auto message = body.text("message")) changed.message = message;
    if (const auto start = body.date("start_at")) changed.startAt = start;
    if (const auto end = body.date("end_at")) changed.endAt = end;
    if (const auto components = body.text("affected_components")) changed.affectedComponents = components;
    if (const auto monitors = body.text("affected_monitor_ids")) changed.affectedMonitorIds = monitors;
    refuseEndBeforeStart(changed);
    maintenance = std::move(changed);
    amended(call.account, maintenance, call.now);
    return ok(wireMaintenance(maintenance, call.now));
}

Answer deleteMaintenance(const Call& call)
{
    removeMaintenance(call.account, named(call), call.now);
    return {204};
}

}  // namespace

void addMaintenancesRoutes(Router& router)
{
    router.add("GET", "/user/api/v1/maintenances", listMaintenances);
    router.add("POST", "/user/api/v1/maintenances", createMaintenance);
    router.add("GET", "/user/api/v1/maintenances/*",
        [](const Call& call) { return ok(wireMaintenance(named(call), call.now)); });
    router.add("PATCH", "/user/api/v1/maintenances/*", updateMaintenance);
    router.add("DELETE", "/user/api/v1/maintenances/*", deleteMaintenance);
}

}  // namespace larkspan::simulator
