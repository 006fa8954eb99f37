#pragma once

#include <optional>

#include "account/MonitorMetrics.h"
#include "json/JsonForward.h"

namespace larkspan::simulator {

/// A window of metrics as the service sends it in this form; empty if it sends none.
std::optional<Json> wireWindow(const MonitorMetrics& metrics, MetricsForm form);

/// The same without the samples and the regions, for lists of many windows.
std::optional<Json> wireFigures(const MonitorMetrics& metrics, MetricsForm form);

}  // namespace larkspan::simulator
