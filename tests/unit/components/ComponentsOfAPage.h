#pragma once

#include <string>
#include <vector>

#include "api/KestruneAPI.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/ScriptedService.h"

namespace larkspan::components {

using Words = std::vector<std::string>;

inline std::string componentRecord(const std::string& id, const std::string& rest = "")
{
    return R"({"id": ")" + id + R"(", "name": "Component )" + id + "\"" + rest + "}";
}

inline std::string inGroup(const std::string& id)
{
    return R"(, "component_group_id": ")" + id + "\"";
}

inline std::string groupRecord(const std::string& id)
{
    return R"({"id": ")" + id + R"(", "name": "Group )" + id + R"("})";
}

/// A service whose page "p" has the test's components and groups.
class ComponentsOfAPage : public fakes::ScriptedService {
public:
    static constexpr auto listURL = "https://service.example/user/api/components?status_page_id=p";
    static constexpr auto groupsURL = "https://service.example/user/api/component-groups?status_page_id=p";
    static constexpr auto recordURL = "https://service.example/user/api/components/";

    void serveComponents(const Words& records) { transport.script(listURL, 200, list(records)); }
    void serveGroups(const Words& records) { transport.script(groupsURL, 200, list(records)); }

    static std::string list(const Words& records)
    {
        std::string joined;
        for (const auto& each : records) joined += (joined.empty() ? "" : ",") + each;
        return "[" + joined + "]";
    }

    fakes::FakeLinkOpener links;
};

}  // namespace larkspan::components
