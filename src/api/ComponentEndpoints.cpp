#include "api/ComponentEndpoints.h"

#include <utility>

#include "api/RequestSending.h"
#include "api/RequestURL.h"
#include "model/Component.h"
#include "model/ComponentGroup.h"

namespace larkspan::api {

using model::Component;
using model::ComponentGroup;
using support::Task;
using Base = RequestEngine::Base;

ComponentEndpoints::ComponentEndpoints(RequestEngine& engine)
    : engine_(engine)
{
}

Task<std::vector<Component>> ComponentEndpoints::fetchComponents(std::optional<std::string> statusPageId)
{
    const auto query = statusPageId ? "?status_page_id=" + queryEscaped(*statusPageId) : "";
    return support::on(engine_.executor(), fetchList<model::ComponentsResponse>("/components" + query));
}

Task<std::vector<ComponentGroup>> ComponentEndpoints::fetchComponentGroups(std::string statusPageId)
{
    auto path = "/component-groups?status_page_id=" + queryEscaped(statusPageId);
    return support::on(engine_.executor(), fetchList<model::ComponentGroupsResponse>(std::move(path)));
}

template <typename Envelope>
Task<typename Envelope::List> ComponentEndpoints::fetchList(std::string path)
{
    auto sending = engine_.sendRawRequest(Base::feature, std::move(path));
    const auto body = co_await std::move(sending);
    const model::JSONDecoder decoder(engine_.clock());
    co_return decoder.decodeList<Envelope>(body);
}

}  // namespace larkspan::api
