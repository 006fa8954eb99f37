#include "presentation/forms/ComponentGroupsOrNone.h"

#include <utility>

namespace larkspan::presentation {

support::Task<ComponentGroups> componentGroupsOrNone(api::ComponentEndpoints& api, std::string pageId)
{
    ComponentGroups groups;
    try {
        auto fetching = api.fetchComponentGroups(std::move(pageId));
        groups = co_await std::move(fetching);
    } catch (...) {
        // Not reported: components can be shown and chosen without groups.
    }
    co_return groups;
}

}  // namespace larkspan::presentation
