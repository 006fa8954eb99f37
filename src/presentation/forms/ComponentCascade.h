#pragma once

#include <string_view>
#include <vector>

#include "model/records/Component.h"
#include "model/records/ComponentGroup.h"
#include "platform/LocaleText.h"

namespace larkspan::presentation {

using Components = std::vector<model::Component>;
using ComponentGroups = std::vector<model::ComponentGroup>;

/// One component for each id, the first in `list`, sorted by name.
Components mergedComponents(Components list, const platform::LocaleText& locale);

/// All components of a page, most of which are listed twice: under their group and in the flat list.
Components allComponents(
    const ComponentGroups& componentGroups, const Components& components, const platform::LocaleText& locale);

/// The components under the group and those that name it themselves.
Components componentsForGroup(std::string_view groupID, const ComponentGroups& componentGroups,
    const Components& components, const platform::LocaleText& locale);

/// The groups with at least one component, in their order.
ComponentGroups groupsWithComponents(const ComponentGroups& componentGroups, const Components& components);

}  // namespace larkspan::presentation
