#pragma once

#include <map>
#include <string>
#include <vector>

#include "support/Task.h"

namespace larkspan::model {

struct ComponentMonitor;
struct Monitor;
struct MonitorMetricsWindow;
struct MonitorWithMetrics;

}  // namespace larkspan::model

namespace larkspan::api {

class RequestEngine;

/// The operations on the account's monitors.
class MonitorEndpoints {
public:
    using MetricsWindows = std::map<std::string, model::MonitorMetricsWindow>;

    explicit MonitorEndpoints(RequestEngine& engine);

    /// The monitors of the whole account, in the service's order.
    support::Task<std::vector<model::Monitor>> fetchMonitors();
    /// Starts a check of the target; the answer comes before the check's result.
    support::Task<void> runMonitor(std::string id);
    support::Task<void> pauseMonitor(std::string id);
    support::Task<void> resumeMonitor(std::string id);
    /// The monitors' windows over a span of time such as "24h", by the monitors' ids.
    support::Task<MetricsWindows> fetchMonitorMetrics(std::vector<std::string> ids, std::string range);
    support::Task<std::vector<model::MonitorWithMetrics>> fetchMonitorsWithMetrics(
        std::vector<std::string> componentIds);
    /// The monitors under the components; without components nothing is sent.
    support::Task<std::vector<model::ComponentMonitor>> fetchComponentMonitors(std::vector<std::string> componentIds);

private:
    // Tasks that run on the client's executor; the public operations start them there.
    support::Task<MetricsWindows> metricsOf(std::string path);
    support::Task<std::vector<model::ComponentMonitor>> componentMonitors(std::vector<std::string> componentIds);

    RequestEngine& engine_;
};

}  // namespace larkspan::api
