#include "model/bodies/ResultRecords.h"
#include "model/records/ComponentMonitor.h"
#include "stage/Client.h"
#include "stage/Operation.h"

namespace larkspan::campaign {

using API = api::KestruneAPI;

std::vector<Operation> reads()
{
    return {
        {"fetchStatusPages", "GET", Answer::list, "StatusPage",
            [](API& api, const Subjects&) { return withoutResult(api.fetchStatusPages()); }},
        {"fetchStatusPageStatuses", "GET", Answer::record, "StatusPagesStatusEnvelope",
            [](API& api, const Subjects&) { return withoutResult(api.fetchStatusPageStatuses()); }},
        {"validateAPIKey", "GET", Answer::unread, "",
            [](API& api, const Subjects&) { return api.validateAPIKey(key); }},
        {"fetchIncidents", "GET", Answer::list, "Incident",
            [](API& api, const Subjects&) { return withoutResult(api.fetchIncidents()); }},
        {"fetchIncidents of a page", "GET", Answer::list, "Incident",
            [](API& api, const Subjects& ids) { return withoutResult(api.fetchIncidents(ids.page)); }},
        {"fetchIncident", "GET", Answer::record, "Incident",
            [](API& api, const Subjects& ids) { return withoutResult(api.fetchIncident(ids.incident)); }},
        {"fetchIncidentStates", "GET", Answer::record, "IncidentStatesEnvelope",
            [](API& api, const Subjects&) { return withoutResult(api.fetchIncidentStates()); }},
        {"fetchMaintenances", "GET", Answer::list, "Maintenance",
            [](API& api, const Subjects&) { return withoutResult(api.fetchMaintenances()); }},
        {"fetchMaintenance", "GET", Answer::record, "Maintenance",
            [](API& api, const Subjects& ids) { return withoutResult(api.fetchMaintenance(ids.maintenance)); }},
        {"fetchMonitors", "GET", Answer::list, "Monitor",
            [](API& api, const Subjects&) { return withoutResult(api.fetchMonitors()); }},
        {"fetchMonitorMetrics", "GET", Answer::record, "MonitorMetricsResponse",
            [](API& api, const Subjects& ids) {
                return withoutResult(api.fetchMonitorMetrics({ids.monitor, ids.pausedMonitor}, "24h"));
            }},
        {"fetchMonitorsWithMetrics", "GET", Answer::list, "MonitorWithMetrics",
            [](API& api, const Subjects& ids) { return withoutResult(api.fetchMonitorsWithMetrics({ids.component})); }},
        {"fetchComponentMonitors", "GET", Answer::bareObject, "ComponentMonitor",
            [](API& api, const Subjects& ids) { return withoutResult(api.fetchComponentMonitors({ids.component})); }},
        {"fetchComponents", "GET", Answer::namedList, "Component",
            [](API& api, const Subjects&) { return withoutResult(api.fetchComponents()); }},
        {"fetchComponents of a page", "GET", Answer::namedList, "Component",
            [](API& api, const Subjects& ids) { return withoutResult(api.fetchComponents(ids.page)); }},
        {"fetchComponentGroups", "GET", Answer::namedList, "ComponentGroup",
            [](API& api, const Subjects& ids) { return withoutResult(api.fetchComponentGroups(ids.page)); }},
        {"fetchOnCallStatus", "GET", Answer::record, "OnCallStatus",
            [](API& api, const Subjects&) { return withoutResult(api.fetchOnCallStatus()); }},
        {"fetchTeams", "GET", Answer::list, "Team",
            [](API& api, const Subjects&) { return withoutResult(api.fetchTeams()); }},
        {"fetchTeamMemberships", "GET", Answer::list, "TeamMembership",
            [](API& api, const Subjects&) { return withoutResult(api.fetchTeamMemberships()); }},
        {"fetchStatusPageViews", "GET", Answer::record, "StatusPageAnalytics",
            [](API& api, const Subjects& ids) { return withoutResult(api.fetchStatusPageViews(ids.page)); }},
        {"fetchSubscriberCount", "GET", Answer::record, "SubscriberCount",
            [](API& api, const Subjects& ids) { return withoutResult(api.fetchSubscriberCount(ids.page)); }},
    };
}

}  // namespace larkspan::campaign
