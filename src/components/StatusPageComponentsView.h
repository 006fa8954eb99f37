#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "api/ComponentEndpoints.h"
#include "components/ComponentDetailView.h"
#include "components/ComponentRow.h"
#include "components/StatusPageComponentsViewModel.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "presentation/Content.h"
#include "presentation/Placeholder.h"
#include "support/Observable.h"

namespace larkspan::components {

/// The components of one page: their list by group, and the one that is opened. Main thread only.
class StatusPageComponentsView final : public support::Observable,
                                       public std::enable_shared_from_this<StatusPageComponentsView> {
public:
    struct Ports {
        platform::Executor& main;
        api::ComponentEndpoints& components;
        platform::CredentialStore& credentials;
        platform::LinkOpener& links;
    };

    StatusPageComponentsView(Ports ports, const std::string& pageID);

    const std::shared_ptr<StatusPageComponentsViewModel> viewModel;

    /// The component that stands in front of the list.
    support::Published<std::optional<model::Component>> presentedComponent{*this};

    /// Calls `observer` before anything changes that the list shows, or what stands in front of it.
    [[nodiscard]] std::array<support::Subscription, 2> observe(const std::function<void()>& observer);

    /// The list came into sight for the first time; coming back to it fetches nothing.
    void appear() { viewModel->loadComponents(); }
    /// The user asked for a load. That is worth a prompt of the credential store.
    void refresh();

    /// A failure shows for as long as its alert is up, and after it a page without components.
    presentation::Content content() const;
    /// What stands in place of the list; all empty while there is one.
    presentation::Placeholder placeholder() const;
    std::vector<ComponentRow> rows() const;

    /// The words of the alert.
    std::string alertMessage() const;
    void dismissAlert() { viewModel->showErrorAlert = false; }

    /// Opens the component of that id; nothing if it has gone meanwhile.
    void openComponent(const std::string& id);
    void closeComponent();
    /// Of `presentedComponent`; null without one.
    const std::shared_ptr<ComponentDetailView>& detail() const { return detail_; }

    /// Leaving the screen would lose what has been typed.
    bool hasUnsavedText() const { return detail_ && detail_->hasUnsavedText(); }

private:
    ComponentDetailView::Owner ownerOf(const model::Component& opened);
    bool isPresented(const std::string& id) const;
    void onUpdate(const model::Component& changed);
    void onDelete(const model::Component& deleted);
    void dismiss(const std::string& id);

    const Ports ports_;
    std::shared_ptr<ComponentDetailView> detail_;
};

}  // namespace larkspan::components
