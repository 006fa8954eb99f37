#pragma once

#include <optional>
#include <string>
#include <vector>

#include "support/Task.h"

namespace larkspan::model {

struct Component;
struct ComponentGroup;

}  // namespace larkspan::model

namespace larkspan::api {

class RequestEngine;

/// What the client asks of the components of the account's pages and of their groups.
class ComponentEndpoints {
public:
    explicit ComponentEndpoints(RequestEngine& engine);

    /// Those of one page, even if its id is empty; of the whole account if it is absent.
    support::Task<std::vector<model::Component>> fetchComponents(std::optional<std::string> statusPageId = {});
    support::Task<std::vector<model::ComponentGroup>> fetchComponentGroups(std::string statusPageId);

private:
    // A task that runs on the client's executor; the public operations send it there.
    template <typename Envelope>
    support::Task<typename Envelope::List> fetchList(std::string path);

    RequestEngine& engine_;
};

}  // namespace larkspan::api
