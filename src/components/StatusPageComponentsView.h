#pragma once

#include <memory>
#include <string>
#include <vector>

#include "api/ComponentEndpoints.h"
#include "components/StatusPageComponentsViewModel.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "presentation/screens/ListScreen.h"
#include "presentation/screens/Opened.h"

namespace larkspan::components {

class ComponentDetailView;
struct ComponentRow;

/// The components of one page: their list by group, and the opened component. Main thread only.
class StatusPageComponentsView final : public presentation::ListScreen,
                                       public std::enable_shared_from_this<StatusPageComponentsView> {
public:
    struct Ports {
        platform::Executor& main;
        api::ComponentEndpoints& api;
        platform::CredentialStore& credentials;
        platform::LinkOpener& links;
    };

    StatusPageComponentsView(Ports ports, const std::string& pageID);

    const std::shared_ptr<StatusPageComponentsViewModel> viewModel;

    /// The component that is open over the list.
    presentation::Opened<ComponentDetailView> presentedComponent{*this};

    std::vector<ComponentRow> rows() const;

    presentation::FailureAlert* alert() const override { return &viewModel->alert; }

    /// Opens the component with this id; does nothing if it no longer exists.
    void openComponent(const std::string& id);
    /// Shows the list again as it is, without fetching.
    void closeComponent();
    /// The screen of `presentedComponent`; null without one.
    const std::shared_ptr<ComponentDetailView>& detail() const { return presentedComponent.screen(); }

private:
    presentation::FetchedRecords& fetched() const override { return *viewModel; }
    std::vector<std::shared_ptr<presentation::GuardedScreen>> inFront() const override;

    std::shared_ptr<ComponentDetailView> detailOf(const model::Component& opened);
    void onDelete(const model::Component& deleted);
    void dismiss(const std::string& id);

    const Ports ports_;
};

}  // namespace larkspan::components
