#include <algorithm>
#include <array>

#include "account/Account.h"
#include "service/Known.h"
#include "service/RequestBody.h"
#include "service/Resources.h"
#include "service/Router.h"
#include "service/WireComponent.h"
#include "service/WireRecord.h"

namespace larkspan::simulator {

namespace {

constexpr std::array states{
    "up", "operational", "degraded", "degradedperformance", "partialoutage", "down", "majoroutage", "undermaintenance"};

Answer listComponents(const Call& call)
{
    std::optional<std::string> page;
    if (call.request.query("status_page_id")) {
        page = knownPageOfQuery(call.account, call.request.query("status_page_id"));
    }
    auto components = Json::array();
    for (const auto& component : call.account.components) {
        if (!page || component.statusPageId == page) components.push_back(wireComponent(component));
    }
    return {.result = std::move(components), .envelope = "components"};
}

/// Moves the component into the group that the body names, or out of its group. A component without a page gets the
/// group's page.
void moveToGroup(Component& component, const std::optional<std::string>& groupId, Account& account)
{
    component.groupId = groupId;
    if (!groupId) return;
    const auto* group = account.findComponentGroup(*groupId);
    if (!group) throw Refusal(422, "There is no such component group.");
    if (component.statusPageId.value_or(group->statusPageId) != group->statusPageId) {
        throw Refusal(422, "The group belongs to another status page.");
    }
    component.statusPageId = group->statusPageId;
}

Answer createComponent(const Call& call)
{
    const RequestBody body(call.request);
    Component component;
    component.name = body.requiredTextNotBlank("name");
    component.description = body.text("description");
    component.state = "up";
    moveToGroup(component, body.text("group_id"), call.account);
    component.id = call.account.issueId("");
    call.account.components.push_back(component);
    return {201, wireComponent(component)};
}

Component& named(const Call& call)
{
    return known(call.account.findComponent(call.wildcards.front()));
}

void changeState(Component& component, const std::optional<std::string>& state)
{
    if (!state || state == component.state) return;
    if (std::ranges::find(states, *state) == states.end()) throw Refusal(422, "There is no such component status.");
    component.state = state;
}

/// The body replaces the component: a missing name or status is kept, since each component has them, but a missing
/// description or group is removed.
Answer updateComponent(const Call& call)
{
    auto& component = named(call);
    const RequestBody body(call.request);
    auto changed = component;
    if (const auto name = body.textNotBlank("name")) changed.name = *name;
    changed.description = body.text("description");
    changeState(changed, body.text("status"));
    // The group may have been deleted; a component that stays in it is not changed.
    const auto groupId = body.text("group_id");
    if (groupId != component.groupId) moveToGroup(changed, groupId, call.account);
    component = std::move(changed);
    return ok(wireComponent(component));
}

Answer deleteComponent(const Call& call)
{
    const auto id = named(call).id;
    std::erase_if(call.account.components, [&id](const Component& component) { return component.id == id; });
    for (auto& monitor : call.account.monitors) {
        if (monitor.componentId == id) monitor.componentId.reset();
    }
    return {204};
}

}  // namespace

void addComponentsRoutes(Router& router)
{
    router.add("GET", "/user/api/components", listComponents);
    router.add("POST", "/user/api/components", createComponent);
    router.add("PUT", "/user/api/components/*", updateComponent);
    router.add("DELETE", "/user/api/components/*", deleteComponent);
}

}  // namespace larkspan::simulator
