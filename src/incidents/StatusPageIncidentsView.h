#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "api/ComponentEndpoints.h"
#include "api/IncidentEndpoints.h"
#include "api/MonitorEndpoints.h"
#include "incidents/CreateIncidentView.h"
#include "incidents/IncidentDetailView.h"
#include "incidents/IncidentRow.h"
#include "incidents/StatusPageIncidentsViewModel.h"
#include "platform/Clock.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "platform/LocaleText.h"
#include "presentation/Content.h"
#include "presentation/Placeholder.h"
#include "support/Observable.h"

namespace larkspan::incidents {

/// The incidents of one page: their list, the one that is opened and the form of a new one. Main thread only.
class StatusPageIncidentsView final : public support::Observable,
                                      public std::enable_shared_from_this<StatusPageIncidentsView> {
public:
    struct Ports {
        platform::Executor& main;
        api::IncidentEndpoints& incidents;
        api::ComponentEndpoints& components;
        api::MonitorEndpoints& monitors;
        platform::CredentialStore& credentials;
        const platform::Clock& clock;
        const platform::LocaleText& locale;
        platform::LinkOpener& links;
    };

    StatusPageIncidentsView(Ports ports, const std::string& pageID);

    const std::shared_ptr<StatusPageIncidentsViewModel> viewModel;

    /// The incident that stands in front of the list.
    support::Published<std::optional<model::Incident>> presentedIncident{*this};
    /// The form of a new incident is up.
    support::Published<bool> showCreateIncident{*this, false};

    /// Calls `observer` before anything changes that the list shows, or what stands in front of it.
    [[nodiscard]] std::array<support::Subscription, 2> observe(const std::function<void()>& observer);

    /// The list came into sight, for the first time or again.
    void appear() { viewModel->load(); }
    /// The user asked for a load. That is worth a prompt of the credential store.
    void refresh();

    presentation::Content content() const { return viewModel->content(); }
    /// What stands in place of the list; all empty while there is one.
    presentation::Placeholder placeholder() const;
    std::vector<IncidentRow> rows() const;

    /// Opens the incident of that row; nothing if it has gone meanwhile.
    void openIncident(const std::string& id);
    /// Brings the list back into sight, and so up to date.
    void closeIncident();
    /// Of `presentedIncident`; null without one.
    const std::shared_ptr<IncidentDetailView>& detail() const { return detail_; }

    void openCreateIncident();
    /// What the sheet shows; null while it is down.
    const std::shared_ptr<CreateIncidentView>& form() const { return form_; }

    /// Leaving the screen would lose what has been typed.
    bool hasUnsavedText() const;

private:
    IncidentDetailView::Owner ownerOf(const model::Incident& opened);
    CreateIncidentView::Owner ownerOfForm();
    void closeCreateIncident();
    bool isPresented(const std::string& id) const;
    void takeBack(const model::Incident& changed);
    void dismiss(const std::string& id);
    void loadIfInSight();

    const Ports ports_;
    std::shared_ptr<IncidentDetailView> detail_;
    std::shared_ptr<CreateIncidentView> form_;
};

}  // namespace larkspan::incidents
