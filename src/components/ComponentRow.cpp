#include "components/ComponentRow.h"

#include <string_view>
#include <unordered_map>
#include <utility>

#include "components/ComponentStatus.h"

namespace larkspan::components {

using model::Component;
using model::ComponentGroup;

namespace {

using Members = std::vector<const Component*>;

class Sections {
public:
    explicit Sections(std::size_t mostRows) { rows_.reserve(mostRows); }

    void add(std::string id, std::string title, const Members& members)
    {
        append({.id = std::move(id), .title = std::move(title), .isHeading = true});
        for (const auto* component : members) append(ComponentRow::of(*component));
    }

    void addUnlessEmpty(std::string id, std::string title, const Members& members)
    {
        if (!members.empty()) add(std::move(id), std::move(title), members);
    }

    std::vector<ComponentRow> rows() && { return std::move(rows_); }

private:
    void append(ComponentRow row)
    {
        if (!rows_.empty()) {
            row.followsComponent = !rows_.back().isHeading;
            rows_.back().precedesComponent = !row.isHeading;
        }
        rows_.push_back(std::move(row));
    }

    std::vector<ComponentRow> rows_;
};

}  // namespace

ComponentRow ComponentRow::of(const Component& component)
{
    return {.id = component.id,
        .title = component.name,
        .symbol = std::string(componentStatusIcon(component.status)),
        .tone = componentStatusColor(component.status),
        .description = component.description.value_or(""),
        .status = componentStatusPill(component.status)};
}

std::vector<ComponentRow> componentRows(
    const std::vector<Component>& components, const std::vector<ComponentGroup>& groups)
{
    std::unordered_map<std::string_view, Members> grouped;
    grouped.reserve(groups.size());
    for (const auto& group : groups) grouped.try_emplace(group.id);
    Members ungrouped;
    Members others;
    for (const auto& component : components) {
        if (!component.groupId) {
            ungrouped.push_back(&component);
        } else if (const auto group = grouped.find(*component.groupId); group != grouped.end()) {
            group->second.push_back(&component);
        } else {
            others.push_back(&component);
        }
    }
    Sections sections(components.size() + groups.size() + 2);
    for (const auto& group : groups) {
        // An id stands for one section: where the service repeats it, its components still show once.
        sections.add("group:" + group.id, group.name, std::exchange(grouped[group.id], {}));
    }
    sections.addUnlessEmpty("ungrouped", "Ungrouped", ungrouped);
    sections.addUnlessEmpty("other", "Other Components", others);
    return std::move(sections).rows();
}

}  // namespace larkspan::components
