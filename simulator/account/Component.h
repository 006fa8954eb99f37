#pragma once

#include <optional>
#include <string>

namespace larkspan::simulator {

/// A group of a page's components.
struct ComponentGroup {
    std::string id;
    std::string name;
    std::string statusPageId;
    /// Whether the service includes the group's components in its record.
    bool listsComponents = false;
};

/// A named part of a page. `state` is sent as it is, even if no such state exists; `groupId` may be that of a deleted
/// group.
struct Component {
    /// An id of digits only is sent as a number, as the service does.
    std::string id;
    std::string name;
    std::optional<std::string> description;
    std::optional<std::string> state;
    std::optional<std::string> groupId;
    std::optional<std::string> url;
    std::optional<std::string> statusPageId;
};

}  // namespace larkspan::simulator
