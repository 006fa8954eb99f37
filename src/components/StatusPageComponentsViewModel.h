#pragma once

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "api/ComponentEndpoints.h"
#include "model/Component.h"
#include "model/ComponentGroup.h"
#include "platform/Executor.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::components {

/// The components of one page and their groups, fetched beside each other. A failed load leaves none of either. Main
/// thread only; a running load outlives the screen that began it.
class StatusPageComponentsViewModel final : public support::Observable,
                                            public std::enable_shared_from_this<StatusPageComponentsViewModel> {
public:
    StatusPageComponentsViewModel(platform::Executor& main, api::ComponentEndpoints& api, std::string page);

    const std::string pageId;

    /// In the order in which the service gave them.
    support::Published<std::vector<model::Component>> components{*this};
    support::Published<std::vector<model::ComponentGroup>> componentGroups{*this};
    support::Published<bool> isLoading{*this, false};
    /// The alert of a load that failed is up.
    support::Published<bool> showErrorAlert{*this, false};
    support::Published<std::optional<std::string>> errorMessage{*this};

    /// Begins to fetch and returns at once. Loads may run beside each other; the last to finish wins.
    void loadComponents();

private:
    static support::Task<void> fetch(std::shared_ptr<StatusPageComponentsViewModel> self);
    void fail(const std::exception_ptr& failure);

    platform::Executor& main_;
    api::ComponentEndpoints& api_;
};

}  // namespace larkspan::components
