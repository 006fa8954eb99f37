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

/// The membership of a user in a team.
struct TeamMembership {
    WIRE_FIELD(std::string, teamId);
    WIRE_FIELD(std::string, userId);
    WIRE_FIELD(std::optional<std::string>, role);

    bool operator==(const TeamMembership&) const = default;
};

}  // namespace larkspan::model
