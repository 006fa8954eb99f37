#pragma once

#include <map>
#include <string>

#include "model/json/WireField.h"
#include "model/records/MonitorMetricsWindow.h"

namespace larkspan::model {

/// The metrics of some monitors over one span of time.
struct MonitorMetricsResponse {
    /// By the monitor's id. Ids undergo the conversion of keys, which changes those with an underscore.
    using Windows = std::map<std::string, MonitorMetricsWindow>;

    WIRE_FIELD(Windows, metrics);

    bool operator==(const MonitorMetricsResponse&) const = default;
};

}  // namespace larkspan::model
