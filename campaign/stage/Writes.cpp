#include "model/bodies/ComponentRequests.h"
#include "model/bodies/IncidentRequests.h"
#include "model/bodies/ResultRecords.h"
#include "model/bodies/UpdateStatusPageRequest.h"
#include "stage/Operation.h"

namespace larkspan::campaign {

using API = api::KestruneAPI;

namespace {

support::Time moment(int hour)
{
    return std::chrono::sys_days(std::chrono::year(2031) / 5 / 17) + std::chrono::hours(hour);
}

std::vector<Operation> incidentOrders()
{
    return {
        {"createIncident", "POST", Answer::record, "Incident",
            [](API& api, const Subjects& ids) {
                return withoutResult(api.createIncident(
                    {.title = "Outage", .message = "We look.", .statusPageId = ids.page, .notifySubscribers = true}));
            }},
        {"updateIncident", "PATCH", Answer::record, "Incident",
            [](API& api, const Subjects& ids) { return withoutResult(api.updateIncident(ids.incident, "Still")); }},
        {"appendIncidentUpdate", "PATCH", Answer::record, "Incident",
            [](API& api, const Subjects& ids) {
                return withoutResult(api.appendIncidentUpdate(ids.incident, "Found", "2"));
            }},
        {"acknowledgeIncident", "POST", Answer::nothing, "",
            [](API& api, const Subjects& ids) { return api.acknowledgeIncident(ids.incident); }},
        {"escalateIncident", "POST", Answer::nothing, "",
            [](API& api, const Subjects& ids) { return api.escalateIncident(ids.incident); }},
        {"resolveIncident without its states", "GET", Answer::record, "",
            [](API& api, const Subjects& ids) { return withoutResult(api.resolveIncident(ids.incident)); }},
        {"resolveIncident", "PATCH", Answer::record, "Incident",
            [](API& api, const Subjects& ids) { return withoutResult(api.resolveIncident(ids.incident)); }},
        {"deleteIncident", "DELETE", Answer::nothing, "",
            [](API& api, const Subjects& ids) { return api.deleteIncident(ids.incident); }},
    };
}

std::vector<Operation> maintenanceOrders()
{
    return {
        {"createMaintenance", "POST", Answer::record, "Maintenance",
            [](API& api, const Subjects& ids) {
                return withoutResult(api.createMaintenance(
                    {.title = "Upgrade", .statusPageId = ids.page, .startAt = moment(3), .endAt = moment(5)}));
            }},
        {"updateMaintenance", "PATCH", Answer::record, "Maintenance",
            [](API& api, const Subjects& ids) {
                return withoutResult(api.updateMaintenance(ids.maintenance, {.title = "Longer"}));
            }},
        {"deleteMaintenance", "DELETE", Answer::nothing, "",
            [](API& api, const Subjects& ids) { return api.deleteMaintenance(ids.maintenance); }},
    };
}

std::vector<Operation> componentOrders()
{
    return {
        {"createComponent", "POST", Answer::record, "Component",
            [](API& api, const Subjects& ids) {
                return withoutResult(api.createComponent({.name = "Search", .groupId = ids.group}));
            }},
        {"updateComponent", "PUT", Answer::record, "Component",
            [](API& api, const Subjects& ids) {
                return withoutResult(
                    api.updateComponent(ids.component, {.name = "API", .status = "down", .groupId = ids.group}));
            }},
        {"deleteComponent", "DELETE", Answer::nothing, "",
            [](API& api, const Subjects& ids) { return api.deleteComponent(ids.component); }},
        {"createComponentGroup", "POST", Answer::record, "ComponentGroup",
            [](API& api, const Subjects& ids) { return withoutResult(api.createComponentGroup(ids.page, "Edges")); }},
        {"updateComponentGroup", "PUT", Answer::record, "ComponentGroup",
            [](API& api, const Subjects& ids) { return withoutResult(api.updateComponentGroup(ids.group, "Core")); }},
        {"deleteComponentGroup", "DELETE", Answer::nothing, "",
            [](API& api, const Subjects& ids) { return api.deleteComponentGroup(ids.group); }},
    };
}

std::vector<Operation> otherOrders()
{
    return {
        {"runMonitor", "POST", Answer::nothing, "",
            [](API& api, const Subjects& ids) { return api.runMonitor(ids.monitor); }},
        {"pauseMonitor", "POST", Answer::nothing, "",
            [](API& api, const Subjects& ids) { return api.pauseMonitor(ids.monitor); }},
        {"resumeMonitor", "POST", Answer::nothing, "",
            [](API& api, const Subjects& ids) { return api.resumeMonitor(ids.pausedMonitor); }},
        {"updateStatusPage", "PATCH", Answer::record, "StatusPage",
            [](API& api, const Subjects& ids) {
                return withoutResult(api.updateStatusPage(ids.page, {.title = "Status"}));
            }},
        {"takeOnCallShift", "POST", Answer::nothing, "",
            [](API& api, const Subjects& ids) { return api.takeOnCallShift(ids.schedule); }},
    };
}

}  // namespace

std::vector<Operation> writes()
{
    std::vector<Operation> all;
    for (const auto& part : {incidentOrders(), maintenanceOrders(), componentOrders(), otherOrders()})
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace larkspan::campaign
