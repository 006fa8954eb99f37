#pragma once

#include <optional>
#include <string>

#include "model/json/WireField.h"
#include "model/records/MonitorMetricsWindow.h"

namespace larkspan::model {

/// A monitor's windows, one for each span of time.
struct MonitorMetricsWindows {
    WIRE_FIELD(std::optional<MonitorMetricsWindow>, oneHour, key("1h"));
    WIRE_FIELD(std::optional<MonitorMetricsWindow>, twentyFourHours, key("24h"));
    WIRE_FIELD(std::optional<MonitorMetricsWindow>, sevenDays, key("7d"));
    WIRE_FIELD(std::optional<MonitorMetricsWindow>, thirtyDays, key("30d"));

    bool operator==(const MonitorMetricsWindows&) const = default;
};

/// A monitor under a component, with all its windows.
struct MonitorWithMetrics {
    WIRE_FIELD(std::string, id);
    WIRE_FIELD(std::string, name);
    WIRE_FIELD(std::optional<std::string>, target);
    /// Always absent: no converted wire key equals a key name with an underscore. Nothing needs the field.
    WIRE_FIELD(std::optional<std::string>, componentId, key("component_id"));
    WIRE_FIELD(MonitorMetricsWindows, metrics);

    bool operator==(const MonitorWithMetrics&) const = default;
};

}  // namespace larkspan::model
