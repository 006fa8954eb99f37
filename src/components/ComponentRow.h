#pragma once

#include <string>
#include <vector>

#include "model/records/Component.h"
#include "model/records/ComponentGroup.h"
#include "presentation/shapes/Pill.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::components {

/// A line in the list of a page's components: a component, or the heading of a section.
struct ComponentRow {
    /// The id of the component's row; headings have other ids.
    std::string id{};
    std::string title{};
    bool isHeading = false;
    /// Whether the previous row is a component.
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

/// The list of a page: a section for each group, then one for the components in no group and one for those whose group
/// is not in `groups`, both only if not empty. All in the given order.
std::vector<ComponentRow> componentRows(
    const std::vector<model::Component>& components, const std::vector<model::ComponentGroup>& groups);

}  // namespace larkspan::components
