#pragma once

#include <string>
#include <vector>

#include "model/records/Component.h"
#include "model/records/ComponentGroup.h"
#include "presentation/shapes/Pill.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::components {

/// A line in the list of a page's components: one of them, or the heading of a section.
struct ComponentRow {
    /// Of the component's row; a heading's is its own.
    std::string id{};
    std::string title{};
    bool isHeading = false;
    /// What stands next to it in the list is a component.
    bool followsComponent = false;
    bool precedesComponent = false;
    std::string symbol{};
    presentation::Tone tone = presentation::Tone::gray;
    /// Empty for none.
    std::string description{};
    presentation::Pill status{};

    static ComponentRow of(const model::Component& component);

    bool operator==(const ComponentRow&) const = default;
};

/// The list of a page: a section for each group, then one of the components in no group and one of those whose group is
/// not among `groups`, both only where there are such. All in the order in which they are given.
std::vector<ComponentRow> componentRows(
    const std::vector<model::Component>& components, const std::vector<model::ComponentGroup>& groups);

}  // namespace larkspan::components
