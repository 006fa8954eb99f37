#pragma once

#include <string>
#include <vector>

#include "support/Task.h"

namespace larkspan::model {

struct ComponentMonitor;

}  // namespace larkspan::model

namespace larkspan::api {

class RequestEngine;

/// What the client asks of the account's monitors.
class MonitorEndpoints {
public:
    explicit MonitorEndpoints(RequestEngine& engine);

    /// Those under the components; without any component there is nothing to ask for, and nothing is sent.
    support::Task<std::vector<model::ComponentMonitor>> fetchComponentMonitors(std::vector<std::string> componentIds);

private:
    // A task that runs on the client's executor; the public operation sends it there.
    support::Task<std::vector<model::ComponentMonitor>> componentMonitors(std::vector<std::string> componentIds);

    RequestEngine& engine_;
};

}  // namespace larkspan::api
