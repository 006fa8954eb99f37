#include "api/MonitorEndpoints.h"

#include <utility>

#include "api/RequestSending.h"
#include "api/RequestURL.h"
#include "model/ComponentMonitor.h"
#include "model/JoinedIds.h"

namespace larkspan::api {

using model::ComponentMonitor;
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
