#include "components/StatusPageComponentsViewModel.h"

#include <utility>

#include "api/APIError.h"
#include "presentation/forms/ComponentGroupsOrNone.h"
#include "support/Child.h"
#include "support/LocalizedError.h"

namespace larkspan::components {

using model::Component;
using model::ComponentGroup;
using support::Task;

namespace {

/// The service answers 401 for a page whose plan lacks components and 403 for a key that may not read them.
std::string wordsFor(const std::exception_ptr& failure)
{
    try {
        std::rethrow_exception(failure);
    } catch (const api::APIError& error) {
        switch (error.statusCode().value_or(0)) {
        case 400: return "Bad request. The status page ID may be invalid.";
        case 401: return "Components are not available for this status page. Your plan may not include this feature.";
        case 403: return "Access forbidden. Check your API key scopes.";
        default: return error.localizedDescription();
        }
    } catch (...) {
        return support::localizedDescription(failure);
    }
}

}  // namespace

StatusPageComponentsViewModel::StatusPageComponentsViewModel(
    platform::Executor& main, api::ComponentEndpoints& api, std::string page)
    : pageId(std::move(page))
    , main_(main)
    , api_(api)
{
}

void StatusPageComponentsViewModel::load()
{
    isLoading = true;
    alert.withdraw();
    alert.text = std::nullopt;
    support::start(main_, fetch(shared_from_this()));
}

presentation::Content StatusPageComponentsViewModel::content() const
{
    return presentation::contentOf(!components->empty(), *isLoading, *showErrorAlert);
}

Task<void> StatusPageComponentsViewModel::fetch(std::shared_ptr<StatusPageComponentsViewModel> self)
{
    support::Child<std::vector<ComponentGroup>> fetchingGroups(
        self->main_, presentation::componentGroupsOrNone(self->api_, self->pageId));
    std::exception_ptr failure;
    try {
        auto fetching = self->api_.fetchComponents(self->pageId);
        std::vector<Component> fetched = co_await std::move(fetching);
        self->components = std::move(fetched);
    } catch (...) {
        failure = std::current_exception();
    }
    auto awaitingGroups = fetchingGroups.result();
    std::vector<ComponentGroup> groups = co_await std::move(awaitingGroups);
    if (failure)
        self->fail(failure);
    else
        self->componentGroups = std::move(groups);
    self->isLoading = false;
}

void StatusPageComponentsViewModel::fail(const std::exception_ptr& failure)
{
    components = {};
    componentGroups = {};
    alert.raise(wordsFor(failure));
}

}  // namespace larkspan::components
