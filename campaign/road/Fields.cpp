#include "Fields.h"

namespace larkspan::campaign {

namespace {

constexpr bool required = true;

Record statusPage()
{
    return {"StatusPage",
        "{'id':'p','name':'Web','slug':'web','url':'https://status.example/web','description':'All of it.',"
        "'status':'operational','created_at':'2026-03-01T09:30:00Z','updated_at':'2026-03-01T09:30:00.5Z',"
        "'metrics':[{'period':'7d','uptime':99.9,'incidents':1}]}",
        {{"/id", Takes::text, required}, {"/name", Takes::text, required}, {"/slug"}, {"/description"},
            {"/status", Takes::word}, {"/created_at", Takes::date}, {"/updated_at", Takes::date},
            {"/metrics", Takes::list}, {"/metrics/0/period", Takes::text, required},
            {"/metrics/0/uptime", Takes::number}, {"/metrics/0/incidents", Takes::integer}}};
}

Record overview()
{
    return {"StatusPagesStatusEnvelope",
        "{'status_pages':[{'id':'p','name':'Web','status':{'code':'operational','label':'Fine'}}]}",
        {{"/status_pages", Takes::list, required}, {"/status_pages/0/id", Takes::text, required},
            {"/status_pages/0/name", Takes::text, required}, {"/status_pages/0/status/code", Takes::text, required},
            {"/status_pages/0/status/label", Takes::text, required}}};
}

Record incident()
{
    return {"Incident",
        "{'id':'i','title':'Down','message':'We look.','created_at':'2026-03-01T09:30:00Z',"
        "'updated_at':'2026-03-01T09:30:00Z','ended_at':'2026-03-01T09:30:00Z',"
        "'acknowledged_at':'2026-03-01T09:30:00Z','assigned_to_user_id':'u','component_id':'c',"
        "'status_page_id':'p','severity_name':'minor','incident_state':'Identified','incident_state_id':'2'}",
        {{"/id", Takes::text, required}, {"/title", Takes::text, required}, {"/message"},
            {"/created_at", Takes::date, required}, {"/updated_at", Takes::date}, {"/ended_at", Takes::date},
            {"/acknowledged_at"}, {"/assigned_to_user_id"}, {"/component_id"}, {"/status_page_id"}, {"/severity_name"},
            {"/incident_state"}, {"/incident_state_id"}}};
}

Record incidentStates()
{
    return {"IncidentStatesEnvelope", "{'incident_states':[{'id':4,'stage':'Resolved','sort_order':4}]}",
        {{"/incident_states", Takes::list, required}, {"/incident_states/0/id", Takes::integer, required},
            {"/incident_states/0/stage", Takes::text, required},
            {"/incident_states/0/sort_order", Takes::integer, required}}};
}

Record maintenance()
{
    return {"Maintenance",
        "{'id':'m','title':'Upgrade','message':'Later.','status':'scheduled','start_at':'2031-03-01T09:30:00Z',"
        "'started_at':'2031-03-01T09:30:00Z','end_at':'2031-03-02T09:30:00Z','created_at':'2026-03-01T09:30:00Z',"
        "'updated_at':'2026-03-01T09:30:00Z','affected_components':'1,2','status_page_id':'p'}",
        {{"/id", Takes::integerOrText, required}, {"/title", Takes::text, required}, {"/message"},
            {"/start_at", Takes::date}, {"/started_at", Takes::date}, {"/end_at", Takes::date},
            {"/created_at", Takes::date}, {"/updated_at", Takes::date}, {"/affected_components"}, {"/status_page_id"}}};
}

Record monitor()
{
    return {"Monitor",
        "{'id':'m','name':'API','type':'http','target':'https://api.example','enabled':true,'state':'up',"
        "'created_at':'2026-03-01T09:30:00Z','updated_at':'2026-03-01T09:30:00Z','interval_seconds':60,"
        "'status_page_id':'p'}",
        {{"/id", Takes::integerOrText, required}, {"/name", Takes::text, required}, {"/type", Takes::word}, {"/target"},
            {"/enabled", Takes::boolean}, {"/state"}, {"/created_at", Takes::anything}, {"/updated_at", Takes::date},
            {"/interval_seconds", Takes::integer}, {"/status_page_id"}}};
}

const std::string window
    = "{'avg_ms':12.5,'uptime_percentage':99.9,'uptime_trend':'up','response_time_trend':0.1,"
      "'response_time_change':1.5,'state':'up','updated':'2026-03-01T09:30:00Z','latency':[1,2],"
      "'latency_points':[{'value':1,'timestamp':'2026-03-01T09:30:00Z'}],"
      "'region_states':[{'region_id':'r','status':'up','avg_ms':1}],'apdex':0.9,'apdex_change':0.1}";

Record metrics()
{
    Record record{"MonitorMetricsResponse", "{'metrics':{'m1':" + window + "}}",
        {{"/metrics", Takes::object, required}, {"/metrics/m1", Takes::object, required}}};
    for (const auto* const key : {"avg_ms", "uptime_percentage", "uptime_trend", "response_time_trend",
             "response_time_change", "state", "updated", "latency", "latency_points", "region_states", "apdex",
             "apdex_change", "latency/1", "latency_points/0/value", "region_states/0/avg_ms"})
        record.fields.push_back({std::string("/metrics/m1/") + key, Takes::anything});
    return record;
}

Record monitorWithMetrics()
{
    return {"MonitorWithMetrics",
        "{'id':'m','name':'API','target':'https://api.example','component_id':'c','metrics':{'24h':" + window + "}}",
        {{"/id", Takes::text, required}, {"/name", Takes::text, required}, {"/target"},
            {"/component_id", Takes::anything}, {"/metrics", Takes::object, required}, {"/metrics/24h", Takes::object},
            {"/metrics/24h/avg_ms", Takes::anything}, {"/metrics/24h/latency", Takes::anything}}};
}

Record componentMonitor()
{
    return {"ComponentMonitor", "{'id':'m','name':'API','target':'https://api.example','component_id':'c'}",
        {{"/id", Takes::integerOrText, required}, {"/name", Takes::text, required}, {"/target"},
            {"/component_id", Takes::text, required}}};
}

Record component()
{
    return {"Component",
        "{'id':'c','name':'API','description':'All of it.','monitor_state':'up','component_group_id':'g',"
        "'url':'https://api.example','status':'x'}",
        {{"/id", Takes::integerOrText, required}, {"/name", Takes::text, required}, {"/description"},
            {"/monitor_state"}, {"/component_group_id"}, {"/url"}, {"/status", Takes::anything}}};
}

Record componentGroup()
{
    return {"ComponentGroup", "{'id':'g','name':'Core','components':[{'id':7,'name':'API'}]}",
        {{"/id", Takes::text, required}, {"/name", Takes::text, required}, {"/components", Takes::list},
            {"/components/0/id", Takes::integerOrText, required}, {"/components/0/name", Takes::text, required}}};
}

Record onCallStatus()
{
    return {"OnCallStatus",
        "{'is_on_call':true,'user_id':'u','user_name':'Robin','team_id':'t','team_name':'Core',"
        "'shift_start':'2026-03-01T09:30:00Z','shift_end':'2026-03-01T17:30:00Z','override_active':false}",
        {{"/is_on_call", Takes::boolean, required}, {"/user_id", Takes::text, required}, {"/user_name"}, {"/team_id"},
            {"/team_name"}, {"/shift_start", Takes::date}, {"/shift_end", Takes::date},
            {"/override_active", Takes::boolean}}};
}

std::vector<Record> smallRecords()
{
    return {
        {"Team", "{'id':'t','name':'Core'}", {{"/id", Takes::text, required}, {"/name", Takes::text, required}}},
        {"TeamMembership", "{'team_id':'t','user_id':'u','role':'lead'}",
            {{"/team_id", Takes::text, required}, {"/user_id", Takes::text, required}, {"/role"}}},
        {"StatusPageAnalytics", "{'period':'30d','view_count':12}",
            {{"/period", Takes::text, required}, {"/view_count", Takes::integer, required}}},
        {"SubscriberCount", "{'count':12}", {{"/count", Takes::integer, required}}},
    };
}

}  // namespace

const std::vector<Record>& records()
{
    static const auto all = [] {
        std::vector<Record> every{statusPage(), overview(), incident(), incidentStates(), maintenance(), monitor(),
            metrics(), monitorWithMetrics(), componentMonitor(), component(), componentGroup(), onCallStatus()};
        for (const auto& record : smallRecords()) every.push_back(record);
        return every;
    }();
    return all;
}

}  // namespace larkspan::campaign
