#pragma once

#include <string_view>
#include <vector>

#include "model/records/Component.h"
#include "model/records/ComponentGroup.h"
#include "platform/LocaleText.h"

namespace larkspan::presentation {

using Components = std::vector<model::Component>;
using ComponentGroups = std::vector<model::ComponentGroup>;

/// One component for each id, the first met, in the order of their names.
Components mergedComponents(Components list, const platform::LocaleText& locale);

/// All components of a page, which usually come twice: under their group and in the flat list.
Components allComponents(
    const ComponentGroups& componentGroups, const Components& components, const platform::LocaleText& locale);

/// Those under the group together with those that name it themselves.
Components componentsForGroup(std::string_view groupID, const ComponentGroups& componentGroups,
    const Components& components, const platform::LocaleText& locale);

/// The groups that have a component to choose, in their own order.
ComponentGroups groupsWithComponents(const ComponentGroups& componentGroups, const Components& components);

}  // namespace larkspan::presentation
