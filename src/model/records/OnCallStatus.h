#pragma once

#include <optional>
#include <string>

#include "model/json/WireField.h"
#include "support/Time.h"

namespace larkspan::model {

/// The on-call duty of the key's owner.
struct OnCallStatus {
    WIRE_FIELD(bool, isOnCall);
    WIRE_FIELD(std::string, userId);
    WIRE_FIELD(std::optional<std::string>, userName);
    WIRE_FIELD(std::optional<std::string>, teamId);
    WIRE_FIELD(std::optional<std::string>, teamName);
    WIRE_FIELD(std::optional<support::Time>, shiftStart);
    WIRE_FIELD(std::optional<support::Time>, shiftEnd);
    WIRE_FIELD(std::optional<bool>, overrideActive);

    bool operator==(const OnCallStatus&) const = default;
};

}  // namespace larkspan::model
