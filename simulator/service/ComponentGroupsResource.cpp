#include <algorithm>

#include "account/Account.h"
#include "service/Known.h"
#include "service/RequestBody.h"
#include "service/Resources.h"
#include "service/Router.h"
#include "service/WireComponent.h"
#include "service/WireRecord.h"

namespace larkspan::simulator {

namespace {

std::optional<Json> listedComponents(const ComponentGroup& group, const Account& account)
{
    if (!group.listsComponents) return std::nullopt;
    auto components = Json::array();
    for (const auto& component : account.components) {
        if (component.groupId == group.id) components.push_back(wireComponent(component));
    }
    return components;
}

Json wireGroup(const ComponentGroup& group, const Account& account)
{
    return wireRecord({
        {"id", group.id},
        {"name", group.name},
        {"status_page_id", group.statusPageId},
        {"components", listedComponents(group, account)},
    });
}

Answer listGroups(const Call& call)
{
    const auto page = knownPageOfQuery(call.account, call.request.query("status_page_id"));
    auto groups = Json::array();
    for (const auto& group : call.account.componentGroups) {
        if (group.statusPageId == page) groups.push_back(wireGroup(group, call.account));
    }
    return {.result = std::move(groups), .envelope = "component_groups"};
}

void refuseTakenName(const ComponentGroup& group, const std::string& name, const Account& account)
{
    const auto isTaken = [&](const ComponentGroup& other) {
        return other.id != group.id && other.statusPageId == group.statusPageId && other.name == name;
    };
    if (std::ranges::any_of(account.componentGroups, isTaken)) throw Refusal(409, "The page has a group of that name.");
}

Answer createGroup(const Call& call)
{
    const RequestBody body(call.request);
    ComponentGroup group;
    group.name = body.requiredTextNotBlank("name");
    group.statusPageId = knownPage(call.account, body.requiredText("status_page_id"));
    refuseTakenName(group, group.name, call.account);
    group.id = call.account.issueId("group-");
    call.account.componentGroups.push_back(group);
    return {201, wireGroup(group, call.account)};
}

ComponentGroup& named(const Call& call)
{
    return known(call.account.findComponentGroup(call.wildcards.front()));
}

Answer updateGroup(const Call& call)
{
    auto& group = named(call);
    if (const auto name = RequestBody(call.request).textNotBlank("name")) {
        refuseTakenName(group, *name, call.account);
        group.name = *name;
    }
    return ok(wireGroup(group, call.account));
}

/// The group's components are kept with the id of the deleted group.
Answer deleteGroup(const Call& call)
{
    const auto id = named(call).id;
    std::erase_if(call.account.componentGroups, [&id](const ComponentGroup& group) { return group.id == id; });
    return {204};
}

}  // namespace

void addComponentGroupsRoutes(Router& router)
{
    router.add("GET", "/user/api/component-groups", listGroups);
    router.add("POST", "/user/api/component-groups", createGroup);
    router.add("PUT", "/user/api/component-groups/*", updateGroup);
    router.add("DELETE", "/user/api/component-groups/*", deleteGroup);
}

}  // namespace larkspan::simulator
