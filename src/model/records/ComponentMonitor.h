#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/json/WireField.h"

namespace larkspan::model {

/// A monitor in the list of a component's monitors.
struct ComponentMonitor {
    WIRE_FIELD(std::string, id, identifier);
    WIRE_FIELD(std::string, name);
    WIRE_FIELD(std::optional<std::string>, target);
    WIRE_FIELD(std::string, componentId);

    bool operator==(const ComponentMonitor&) const = default;
};

/// The monitors of some components.
struct ComponentMonitorsResponse {
    WIRE_FIELD(std::vector<ComponentMonitor>, monitors);

    bool operator==(const ComponentMonitorsResponse&) const = default;
};

}  // namespace larkspan::model
