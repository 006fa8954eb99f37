#include "components/ComponentRow.h"

#include <string_view>
#include <unordered_map>
#include <utility>

#include "components/ComponentStatus.h"
#include "presentation/shapes/RowId.h"
#include "presentation/text/InPart.h"
#include "presentation/text/NameText.h"

namespace larkspan::components {

using model::Component;
using model::ComponentGroup;

namespace {

struct Member {
    const Component& component;
    std::string rowId;
};

using Members = std::vector<Member>;

class Sections {
public:
    explicit Sections(std::size_t mostRows) { rows_.reserve(mostRows); }

    void add(std::string id, std::string title, const Members& members)
    {
        append({.id = std::move(id), .title = std::move(title), .isHeading = true});
        for (const auto& member : members) {
            auto row = ComponentRow::of(member.component);
            row.id = member.rowId;
            append(std::move(row));
        }
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
        .title = presentation::rowTitle(component.name),
        .symbol = std::string(componentStatusIcon(component.status)),
        .tone = componentStatusColor(component.status),
        .description = presentation::inPart(component.description.value_or(""), presentation::mostOfARowsText),
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
    presentation::RowIds ids(components);
    for (const auto& component : components) {
        Member member{component, ids.next(component.id)};
        if (!component.groupId) {
            ungrouped.push_back(std::move(member));
        } else if (const auto group = grouped.find(*component.groupId); group != grouped.end()) {
            group->second.push_back(std::move(member));
        } else {
            others.push_back(std::move(member));
        }
    }
    Sections sections(components.size() + groups.size() + 2);
    for (const auto& group : groups) {
        // Each id has one section: if the service repeats a group, its components are still shown once.
        sections.add("group:" + group.id, presentation::rowTitle(group.name), std::exchange(grouped[group.id], {}));
    }
    sections.addUnlessEmpty("ungrouped", "Ungrouped", ungrouped);
    sections.addUnlessEmpty("other", "Other Components", others);
    return std::move(sections).rows();
}

}  // namespace larkspan::components
