#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/json/WireField.h"
#include "model/records/Component.h"

namespace larkspan::model {

/// A group of a page's components.
struct ComponentGroup {
    WIRE_FIELD(std::string, id);
    WIRE_FIELD(std::string, name);
    /// Absent if the service does not say, which differs from an empty list.
    WIRE_FIELD(std::optional<std::vector<Component>>, components);

    bool operator==(const ComponentGroup&) const = default;
};

/// A list of groups in its own envelope.
struct ComponentGroupsResponse {
    using List = std::vector<ComponentGroup>;

    WIRE_FIELD(List, componentGroups);
};

}  // namespace larkspan::model
