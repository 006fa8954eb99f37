#include "api/StatusPageEndpoints.h"

#include <utility>

#include "api/RequestSending.h"
#include "model/bodies/StatusPagesStatusEnvelope.h"
#include "model/bodies/UpdateStatusPageRequest.h"
#include "model/records/StatusPage.h"
#include "model/records/StatusPageAnalytics.h"

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

Task<StatusPage> StatusPageEndpoints::updateStatusPage(std::string id, model::UpdateStatusPageRequest changes)
{
    return engine_.sendRecord<StatusPage>({.method = "PATCH", .path = "/status-pages/" + id}, std::move(changes));
}

Task<model::StatusPageAnalytics> StatusPageEndpoints::fetchStatusPageViews(std::string pageId)
{
    RequestEngine::Call call{.base = Base::feature, .path = "/analytics/status-pages/" + pageId + "/views"};
    return engine_.sendRequest<model::StatusPageAnalytics>(std::move(call));
}

Task<model::SubscriberCount> StatusPageEndpoints::fetchSubscriberCount(std::string pageId)
{
    return engine_.sendRequest<model::SubscriberCount>({.path = "/status-pages/" + pageId + "/subscribers/count"});
}

}  // namespace larkspan::api
