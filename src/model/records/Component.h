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
    /// The service's word as it comes; requests call it `status` as well, answers call it otherwise.
    WIRE_FIELD(std::string, status, key("monitorState"), otherwise("unknown"));
    /// Without blanks around it; a blank id is none.
    std::optional<std::string> groupId{};
    /// As it comes, whether it is a URL or not.
    WIRE_FIELD(std::optional<std::string>, url);

    static void readGroup(Component& component, const KeyedValue& componentGroupId);
    static constexpr std::tuple derivations{derived("componentGroupId", &readGroup)};

    bool operator==(const Component&) const = default;
};

/// A list of components in an envelope of its own.
struct ComponentsResponse {
    using List = std::vector<Component>;

    WIRE_FIELD(List, components);
};

}  // namespace larkspan::model
