#include "presentation/forms/ComponentCascade.h"

#include <algorithm>
#include <compare>
#include <iterator>
#include <string>
#include <unordered_set>
#include <utility>

namespace larkspan::presentation {

using model::Component;
using model::ComponentGroup;

namespace {

/// The groups' own components come before the flat list, so that of a component in both the group's version is used.
Components groupedFirst(const ComponentGroups& componentGroups, const Components& components)
{
    Components list;
    for (const auto& group : componentGroups) {
        if (group.components) std::ranges::copy(*group.components, std::back_inserter(list));
    }
    std::ranges::copy(components, std::back_inserter(list));
    return list;
}

Components withoutRepetitions(Components list)
{
    std::unordered_set<std::string> met;
    std::erase_if(list, [&met](const Component& component) { return !met.insert(component.id).second; });
    return list;
}

}  // namespace

Components mergedComponents(Components list, const platform::LocaleText& locale)
{
    auto merged = withoutRepetitions(std::move(list));
    std::ranges::stable_sort(merged, [&locale](const Component& left, const Component& right) {
        return std::is_lt(locale.compareIgnoringCase(left.name, right.name));
    });
    return merged;
}

Components allComponents(
    const ComponentGroups& componentGroups, const Components& components, const platform::LocaleText& locale)
{
    return mergedComponents(groupedFirst(componentGroups, components), locale);
}

Components componentsForGroup(std::string_view groupID, const ComponentGroups& componentGroups,
    const Components& components, const platform::LocaleText& locale)
{
    Components list;
    const auto group = std::ranges::find(componentGroups, groupID, &ComponentGroup::id);
    if (group != componentGroups.end() && group->components) list = *group->components;
    std::ranges::copy_if(withoutRepetitions(groupedFirst(componentGroups, components)), std::back_inserter(list),
        [groupID](const Component& component) { return component.groupId == groupID; });
    return mergedComponents(std::move(list), locale);
}

ComponentGroups groupsWithComponents(const ComponentGroups& componentGroups, const Components& components)
{
    std::unordered_set<std::string> named;
    for (const auto& component : withoutRepetitions(groupedFirst(componentGroups, components))) {
        if (component.groupId) named.insert(*component.groupId);
    }
    // Of several groups with the same id, only the first one counts.
    std::unordered_set<std::string> met;
    for (const auto& group : componentGroups) {
        if (met.insert(group.id).second && group.components && !group.components->empty()) named.insert(group.id);
    }
    ComponentGroups offered;
    std::ranges::copy_if(componentGroups, std::back_inserter(offered),
        [&named](const ComponentGroup& group) { return named.contains(group.id); });
    return offered;
}

}  // namespace larkspan::presentation
