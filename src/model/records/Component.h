#pragma once

#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "model/json/WireField.h"

namespace larkspan::model {

/// A named part of a status page.
struct Component {
    WIRE_FIELD(std::string, id, identifier);
    WIRE_FIELD(std::string, name);
    WIRE_FIELD(std::optional<std::string>, description);
    /// The service's word, unchanged. In requests its key is `status` as well, in answers another one.
    WIRE_FIELD(std::string, status, key("monitorState"), otherwise("unknown"));
    /// Without surrounding blanks; absent if the id is blank.
    std::optional<std::string> groupId{};
    /// Unchanged, whether it is a URL or not.
    WIRE_FIELD(std::optional<std::string>, url);

    static void readGroup(Component& component, const KeyedValue& componentGroupId);
    static constexpr std::tuple derivations{derived("componentGroupId", &readGroup)};

    bool operator==(const Component&) const = default;
};

/// A list of components in its own envelope.
struct ComponentsResponse {
    using List = std::vector<Component>;

    WIRE_FIELD(List, components);
};

}  // namespace larkspan::model
