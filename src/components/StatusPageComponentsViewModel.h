#pragma once

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "api/ComponentEndpoints.h"
#include "model/records/Component.h"
#include "model/records/ComponentGroup.h"
#include "platform/Executor.h"
#include "presentation/screens/FailureAlert.h"
#include "presentation/screens/FetchedRecords.h"
#include "presentation/screens/RecordList.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::components {

/// The components of one page and their groups, fetched concurrently. A failed load removes both; a running load may
/// outlive the screen that started it.
class StatusPageComponentsViewModel final : public presentation::FetchedRecords,
                                            public std::enable_shared_from_this<StatusPageComponentsViewModel> {
public:
    StatusPageComponentsViewModel(platform::Executor& main, api::ComponentEndpoints& api, std::string page);

    const std::string pageId;

    /// In the service's order.
    presentation::RecordList<model::Component> components{*this};
    support::Published<std::vector<model::ComponentGroup>> componentGroups{*this};
    support::Published<bool> isLoading{*this, false};
    /// Tells of a load that failed.
    presentation::FailureAlert alert{*this};
    support::Published<bool>& showErrorAlert = alert.isUp;
    support::Published<std::optional<std::string>>& errorMessage = alert.text;

    void loadComponents() { load(); }
    void load() override;

    /// A failure is shown as long as its alert is, and then a page without components.
    presentation::Content content() const override;
    std::string failureText() const override { return errorMessage->value_or("Could not load components."); }

private:
    static support::Task<void> fetch(std::shared_ptr<StatusPageComponentsViewModel> self);
    void fail(const std::exception_ptr& failure);

    platform::Executor& main_;
    api::ComponentEndpoints& api_;
};

}  // namespace larkspan::components
