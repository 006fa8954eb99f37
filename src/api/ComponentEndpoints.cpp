#include "api/ComponentEndpoints.h"

#include <utility>

#include "api/RequestSending.h"
#include "api/RequestURL.h"
#include "model/bodies/ComponentRequests.h"
#include "model/json/Encoding.h"
#include "model/records/Component.h"
#include "model/records/ComponentGroup.h"

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

Task<Component> ComponentEndpoints::createComponent(model::CreateComponentRequest request)
{
    return engine_.sendRecord<Component>({Base::feature, "POST", "/components"}, std::move(request));
}

Task<Component> ComponentEndpoints::updateComponent(std::string id, model::UpdateComponentRequest changes)
{
    return engine_.sendRecord<Component>({Base::feature, "PUT", "/components/" + id}, std::move(changes));
}

Task<void> ComponentEndpoints::deleteComponent(std::string id)
{
    return engine_.sendForNothing({Base::feature, "DELETE", "/components/" + id});
}

Task<std::vector<ComponentGroup>> ComponentEndpoints::fetchComponentGroups(std::string statusPageId)
{
    auto path = "/component-groups?status_page_id=" + queryEscaped(statusPageId);
    return support::on(engine_.executor(), fetchList<model::ComponentGroupsResponse>(std::move(path)));
}

Task<ComponentGroup> ComponentEndpoints::createComponentGroup(std::string statusPageId, std::string name)
{
    return support::on(engine_.executor(), createGroup(std::move(statusPageId), std::move(name)));
}

Task<ComponentGroup> ComponentEndpoints::createGroup(std::string statusPageId, std::string name)
{
    // The record of a new group has a name and no page, so this body is written key by key.
    model::JSONObjectWriter body;
    body.write("name", name);
    body.write("status_page_id", statusPageId);
    RequestEngine::Call call{Base::feature, "POST", "/component-groups", std::move(body).finish()};
    auto sending = engine_.sendRequest<ComponentGroup>(std::move(call));
    auto group = co_await std::move(sending);
    co_return group;
}

Task<ComponentGroup> ComponentEndpoints::updateComponentGroup(std::string id, std::optional<std::string> name)
{
    model::UpdateGroupRequest changes{.name = std::move(name)};
    return engine_.sendRecord<ComponentGroup>({Base::feature, "PUT", "/component-groups/" + id}, std::move(changes));
}

Task<void> ComponentEndpoints::deleteComponentGroup(std::string id)
{
    return engine_.sendForNothing({Base::feature, "DELETE", "/component-groups/" + id});
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
