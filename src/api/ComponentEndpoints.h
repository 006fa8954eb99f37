#pragma once

#include <optional>
#include <string>
#include <vector>

#include "support/Task.h"

namespace larkspan::model {

struct Component;
struct ComponentGroup;
struct CreateComponentRequest;
struct UpdateComponentRequest;

}  // namespace larkspan::model

namespace larkspan::api {

class RequestEngine;

/// The operations on the components of the account's pages and on their groups.
class ComponentEndpoints {
public:
    explicit ComponentEndpoints(RequestEngine& engine);

    /// The components of one page, even if its id is empty; of the whole account if it is absent.
    support::Task<std::vector<model::Component>> fetchComponents(std::optional<std::string> statusPageId = {});
    support::Task<model::Component> createComponent(model::CreateComponentRequest request);
    support::Task<model::Component> updateComponent(std::string id, model::UpdateComponentRequest changes);
    support::Task<void> deleteComponent(std::string id);
    support::Task<std::vector<model::ComponentGroup>> fetchComponentGroups(std::string statusPageId);
    support::Task<model::ComponentGroup> createComponentGroup(std::string statusPageId, std::string name);
    support::Task<model::ComponentGroup> updateComponentGroup(std::string id, std::optional<std::string> name);
    support::Task<void> deleteComponentGroup(std::string id);

private:
    // Tasks that run on the client's executor; the public operations start them there.
    template <typename Envelope>
    support::Task<typename Envelope::List> fetchList(std::string path);

    support::Task<model::ComponentGroup> createGroup(std::string statusPageId, std::string name);

    RequestEngine& engine_;
};

}  // namespace larkspan::api
