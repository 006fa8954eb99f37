#pragma once

#include <optional>
#include <string>

#include "model/json/WireField.h"
#include "support/Time.h"

namespace larkspan::model {

struct CreateMaintenanceRequest {
    WIRE_FIELD(std::string, title);
    WIRE_FIELD(std::optional<std::string>, message);
    WIRE_FIELD(std::string, statusPageId);
    WIRE_FIELD(support::Time, startAt);
    WIRE_FIELD(support::Time, endAt);
    WIRE_FIELD(std::optional<std::string>, affectedComponents);
    WIRE_FIELD(std::optional<std::string>, affectedMonitorIds);

    bool operator==(const CreateMaintenanceRequest&) const = default;
};

struct UpdateMaintenanceRequest {
    WIRE_FIELD(std::optional<std::string>, title);
    WIRE_FIELD(std::optional<std::string>, message);
    WIRE_FIELD(std::optional<support::Time>, startAt);
    WIRE_FIELD(std::optional<support::Time>, endAt);
    WIRE_FIELD(std::optional<std::string>, affectedComponents);
    WIRE_FIELD(std::optional<std::string>, affectedMonitorIds);

    bool operator==(const UpdateMaintenanceRequest&) const = default;
};

}  // namespace larkspan::model
