#pragma once

#include <string>

#include "fakes/FakeLocaleText.h"
#include "fakes/ScriptedService.h"

namespace larkspan::fakes {

/// A service with the page "p": the group "Backend" has the component "API" with two monitors and the component "Cron"
/// with none; the component "Site" is in no group.
struct PageComponents : ScriptedService {
    static constexpr auto componentsURL = "https://service.example/user/api/components?status_page_id=p";
    static constexpr auto groupsURL = "https://service.example/user/api/component-groups?status_page_id=p";
    static constexpr auto apiMonitorsURL = "https://service.example/user/api/monitors?component_ids=api";
    static constexpr auto cronMonitorsURL = "https://service.example/user/api/monitors?component_ids=cron";

    static constexpr auto componentsBody = R"([{"id": "cron", "name": "Cron", "component_group_id": "back"},
        {"id": "api", "name": "API", "component_group_id": "back"}, {"id": "site", "name": "Site"}])";
    static constexpr auto groupsBody = R"([{"id": "back", "name": "Backend"}, {"id": "empty", "name": "Empty"}])";
    static constexpr auto apiMonitorsBody = R"({"monitors": [{"id": "m2", "name": "Ping", "component_id": "api"},
        {"id": "m1", "name": "HTTP", "component_id": "api"}]})";

    PageComponents()
    {
        transport.script(componentsURL, 200, componentsBody);
        transport.script(groupsURL, 200, groupsBody);
        transport.script(apiMonitorsURL, 200, apiMonitorsBody);
        transport.script(cronMonitorsURL, 200, R"({"monitors": []})");
    }

    FakeLocaleText locale;
};

}  // namespace larkspan::fakes
