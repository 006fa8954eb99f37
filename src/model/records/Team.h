#pragma once

#include <optional>
#include <string>

#include "model/json/WireField.h"

namespace larkspan::model {

/// A team of the account.
struct Team {
    WIRE_FIELD(std::string, id);
    WIRE_FIELD(std::string, name);

    bool operator==(const Team&) const = default;
};

/// That a user belongs to a team.
struct TeamMembership {
    WIRE_FIELD(std::string, teamId);
    WIRE_FIELD(std::string, userId);
    WIRE_FIELD(std::optional<std::string>, role);

    bool operator==(const TeamMembership&) const = default;
};

}  // namespace larkspan::model
