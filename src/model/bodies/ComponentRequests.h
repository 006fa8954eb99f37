#pragma once

#include <optional>
#include <string>

#include "model/json/WireField.h"

namespace larkspan::model {

struct CreateComponentRequest {
    WIRE_FIELD(std::string, name);
    WIRE_FIELD(std::optional<std::string>, description);
    WIRE_FIELD(std::optional<std::string>, groupId);

    bool operator==(const CreateComponentRequest&) const = default;
};

/// The body of a request that changes a component.
struct UpdateComponentRequest {
    WIRE_FIELD(std::optional<std::string>, name);
    WIRE_FIELD(std::optional<std::string>, description);
    WIRE_FIELD(std::optional<std::string>, status);
    WIRE_FIELD(std::optional<std::string>, groupId);

    bool operator==(const UpdateComponentRequest&) const = default;
};

struct CreateGroupRequest {
    WIRE_FIELD(std::string, name);

    bool operator==(const CreateGroupRequest&) const = default;
};

struct UpdateGroupRequest {
    WIRE_FIELD(std::optional<std::string>, name);

    bool operator==(const UpdateGroupRequest&) const = default;
};

}  // namespace larkspan::model
