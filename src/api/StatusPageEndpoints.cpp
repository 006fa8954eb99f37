#include "api/StatusPageEndpoints.h"

#include <utility>

#include "api/RequestSending.h"
#include "model/StatusPage.h"
#include "model/StatusPagesStatusEnvelope.h"

namespace larkspan::api {

using model::PageStatusEntry;
using model::StatusPage;
using support::Task;
using Base = RequestEngine::Base;

StatusPageEndpoints::StatusPageEndpoints(RequestEngine& engine)
    : engine_(engine)
{
}

Task<std::vector<StatusPage>> StatusPageEndpoints::fetchStatusPages(std::stop_token stop)
{
    return engine_.sendRequest<std::vector<StatusPage>>({.path = "/status-pages"}, std::move(stop));
}

Task<std::vector<PageStatusEntry>> StatusPageEndpoints::fetchStatusPageStatuses(std::stop_token stop)
{
    return support::on(engine_.executor(), statusPageStatuses(std::move(stop)));
}

Task<std::vector<PageStatusEntry>> StatusPageEndpoints::statusPageStatuses(std::stop_token stop)
{
    RequestEngine::Call call{.base = Base::feature, .path = "status-pages/status"};
    auto sending = engine_.sendRequest<model::StatusPagesStatusEnvelope>(std::move(call), std::move(stop));
    auto envelope = co_await std::move(sending);
    co_return std::move(envelope.statusPages);
}

}  // namespace larkspan::api
