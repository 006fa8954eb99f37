#pragma once

#include <optional>
#include <string>

namespace larkspan::simulator {

/// A group of a page's components.
struct ComponentGroup {
    std::string id;
    std::string name;
    std::string statusPageId;
    /// Whether the service lists the group's components along with it.
    bool listsComponents = false;
};

/// A named part of a page. `state` is the word sent, whatever it is; `groupId` may be that of a group that is gone.
struct Component {
    /// Digits alone travel as a number, as the service's own ids do.
    std::string id;
    std::string name;
    std::optional<std::string> description;
    std::optional<std::string> state;
    std::optional<std::string> groupId;
    std::optional<std::string> url;
    std::optional<std::string> statusPageId;
};

}  // namespace larkspan::simulator
