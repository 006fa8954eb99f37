#include "api/MaintenanceEndpoints.h"

#include <utility>

#include "api/RequestSending.h"
#include "model/bodies/MaintenanceRequests.h"
#include "model/json/JoinedIds.h"
#include "model/records/Maintenance.h"

namespace larkspan::api {

using model::Maintenance;
using support::Task;

namespace {

/// An empty list is not sent to the service.
std::optional<std::string> affected(const Ids& ids)
{
    if (!ids || ids->empty()) return std::nullopt;
    return model::joinedIds(*ids);
}

}  // namespace

MaintenanceEndpoints::MaintenanceEndpoints(RequestEngine& engine)
    : engine_(engine)
{
}

Task<std::vector<Maintenance>> MaintenanceEndpoints::fetchMaintenances(std::stop_token stop)
{
    return engine_.sendRequest<std::vector<Maintenance>>({.path = "/maintenances"}, std::move(stop));
}

Task<Maintenance> MaintenanceEndpoints::fetchMaintenance(std::string id)
{
    return engine_.sendRequest<Maintenance>({.path = "/maintenances/" + id});
}

Task<Maintenance> MaintenanceEndpoints::createMaintenance(NewMaintenance arguments)
{
    model::CreateMaintenanceRequest body{
        .title = std::move(arguments.title),
        .message = std::move(arguments.message),
        .statusPageId = std::move(arguments.statusPageId),
        .startAt = arguments.startAt,
        .endAt = arguments.endAt,
        .affectedComponents = affected(arguments.componentIds),
        .affectedMonitorIds = affected(arguments.monitorIds),
    };
    return engine_.sendRecord<Maintenance>({.method = "POST", .path = "/maintenances"}, std::move(body));
}

Task<Maintenance> MaintenanceEndpoints::updateMaintenance(std::string id, MaintenanceChanges arguments)
{
    model::UpdateMaintenanceRequest body{
        .title = std::move(arguments.title),
        .message = std::move(arguments.message),
        .startAt = arguments.startAt,
        .endAt = arguments.endAt,
        .affectedComponents = affected(arguments.componentIds),
        .affectedMonitorIds = affected(arguments.monitorIds),
    };
    return engine_.sendRecord<Maintenance>({.method = "PATCH", .path = "/maintenances/" + id}, std::move(body));
}

Task<void> MaintenanceEndpoints::deleteMaintenance(std::string id)
{
    return engine_.sendForNothing({.method = "DELETE", .path = "/maintenances/" + id});
}

}  // namespace larkspan::api
