#include <utility>

#include "api/KestruneAPI.h"
#include "api/RecordSending.h"
#include "model/MaintenanceRequests.h"

namespace larkspan::api {

using model::Maintenance;
using support::Task;

namespace {

std::string maintenancePath(const std::string& id)
{
    return "/maintenances/" + id;
}

}  // namespace

Task<std::vector<Maintenance>> KestruneAPI::fetchMaintenances(std::stop_token stop)
{
    return sendRequest<std::vector<Maintenance>>({.path = "/maintenances"}, std::move(stop));
}

Task<Maintenance> KestruneAPI::fetchMaintenance(std::string id)
{
    return sendRequest<Maintenance>({.path = maintenancePath(id)});
}

Task<Maintenance> KestruneAPI::createMaintenance(NewMaintenance arguments)
{
    Call call{.method = "POST", .path = "/maintenances"};
    model::CreateMaintenanceRequest body{
        .title = std::move(arguments.title),
        .message = std::move(arguments.message),
        .statusPageId = std::move(arguments.statusPageId),
        .startAt = arguments.startAt,
        .endAt = arguments.endAt,
        .affectedComponents = model::joinedIds(arguments.componentIds),
        .affectedMonitorIds = model::joinedIds(arguments.monitorIds),
    };
    return support::on(ports_.executor, sendRecord<Maintenance>(std::move(call), std::move(body)));
}

Task<Maintenance> KestruneAPI::updateMaintenance(std::string id, MaintenanceChanges arguments)
{
    Call call{.method = "PATCH", .path = maintenancePath(id)};
    model::UpdateMaintenanceRequest body{
        .title = std::move(arguments.title),
        .message = std::move(arguments.message),
        .startAt = arguments.startAt,
        .endAt = arguments.endAt,
        .affectedComponents = model::joinedIds(arguments.componentIds),
        .affectedMonitorIds = model::joinedIds(arguments.monitorIds),
    };
    return support::on(ports_.executor, sendRecord<Maintenance>(std::move(call), std::move(body)));
}

Task<void> KestruneAPI::deleteMaintenance(std::string id)
{
    Call call{.method = "DELETE", .path = maintenancePath(id)};
    return support::on(ports_.executor, sendForNothing(std::move(call)));
}

}  // namespace larkspan::api
