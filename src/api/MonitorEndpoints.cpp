#include "api/MonitorEndpoints.h"

#include <utility>

#include "api/RequestSending.h"
#include "api/RequestURL.h"
#include "model/bodies/MonitorMetricsResponse.h"
#include "model/json/JoinedIds.h"
#include "model/records/ComponentMonitor.h"
#include "model/records/Monitor.h"
#include "model/records/MonitorWithMetrics.h"

namespace larkspan::api {

using model::ComponentMonitor;
using model::Monitor;
using model::MonitorWithMetrics;
using support::Task;
using Base = RequestEngine::Base;

namespace {

std::string underComponents(const std::vector<std::string>& ids)
{
    return "/monitors?component_ids=" + queryEscaped(model::joinedIds(ids));
}

}  // namespace

MonitorEndpoints::MonitorEndpoints(RequestEngine& engine)
    : engine_(engine)
{
}

Task<std::vector<Monitor>> MonitorEndpoints::fetchMonitors()
{
    return engine_.sendRequest<std::vector<Monitor>>({.path = "/monitors"});
}

Task<void> MonitorEndpoints::runMonitor(std::string id)
{
    return engine_.sendForNothing({Base::feature, "POST", "/monitors/" + id + "/run"});
}

Task<void> MonitorEndpoints::pauseMonitor(std::string id)
{
    return engine_.sendForNothing({Base::feature, "POST", "/monitors/" + id + "/pause"});
}

Task<void> MonitorEndpoints::resumeMonitor(std::string id)
{
    return engine_.sendForNothing({Base::feature, "POST", "/monitors/" + id + "/resume"});
}

Task<MonitorEndpoints::MetricsWindows> MonitorEndpoints::fetchMonitorMetrics(
    std::vector<std::string> ids, std::string range)
{
    auto path = "monitors/metrics?ids=" + queryEscaped(model::joinedIds(ids)) + "&range=" + queryEscaped(range);
    return support::on(engine_.executor(), metricsOf(std::move(path)));
}

Task<MonitorEndpoints::MetricsWindows> MonitorEndpoints::metricsOf(std::string path)
{
    RequestEngine::Call call{.base = Base::feature, .path = std::move(path)};
    auto sending = engine_.sendRequest<model::MonitorMetricsResponse>(std::move(call));
    auto answer = co_await std::move(sending);
    co_return std::move(answer.metrics);
}

Task<std::vector<MonitorWithMetrics>> MonitorEndpoints::fetchMonitorsWithMetrics(std::vector<std::string> componentIds)
{
    RequestEngine::Call call{.base = Base::feature, .path = underComponents(componentIds)};
    return engine_.sendRequest<std::vector<MonitorWithMetrics>>(std::move(call));
}

Task<std::vector<ComponentMonitor>> MonitorEndpoints::fetchComponentMonitors(std::vector<std::string> componentIds)
{
    return support::on(engine_.executor(), componentMonitors(std::move(componentIds)));
}

Task<std::vector<ComponentMonitor>> MonitorEndpoints::componentMonitors(std::vector<std::string> componentIds)
{
    if (componentIds.empty()) co_return std::vector<ComponentMonitor>{};
    auto sending = engine_.sendRawRequest(Base::feature, underComponents(componentIds));
    const auto body = co_await std::move(sending);
    const model::JSONDecoder decoder(engine_.clock());
    auto answer = decoder.decodeBare<model::ComponentMonitorsResponse>(body);
    co_return std::move(answer.monitors);
}

}  // namespace larkspan::api
