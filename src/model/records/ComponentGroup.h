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
    /// Absent where the service does not say, which is not the same as none.
    WIRE_FIELD(std::optional<std::vector<Component>>, components);

    bool operator==(const ComponentGroup&) const = default;
};

/// A list of groups in an envelope of its own.
struct ComponentGroupsResponse {
    using List = std::vector<ComponentGroup>;

    WIRE_FIELD(List, componentGroups);
};

}  // namespace larkspan::model
