#pragma once

#include <map>
#include <string>

#include "model/json/WireField.h"
#include "model/records/MonitorMetricsWindow.h"

namespace larkspan::model {

/// The windows of some monitors over one span of time.
struct MonitorMetricsResponse {
    /// By the monitor's id. An id passes the conversion of keys, so one with an underscore comes out changed.
    using Windows = std::map<std::string, MonitorMetricsWindow>;

    WIRE_FIELD(Windows, metrics);

    bool operator==(const MonitorMetricsResponse&) const = default;
};

}  // namespace larkspan::model
