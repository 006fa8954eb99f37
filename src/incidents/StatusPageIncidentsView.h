#pragma once

#include <memory>
#include <string>
#include <vector>

#include "api/IncidentEndpoints.h"
#include "incidents/CreateIncidentView.h"
#include "incidents/IncidentDetailView.h"
#include "incidents/IncidentRow.h"
#include "incidents/StatusPageIncidentsViewModel.h"
#include "presentation/forms/EventListPorts.h"
#include "presentation/screens/ListScreen.h"
#include "presentation/screens/Opened.h"
#include "support/Task.h"

namespace larkspan::incidents {

/// The incidents of one page: their list, the one that is opened and the form of a new one. Main thread only.
class StatusPageIncidentsView final : public presentation::ListScreen,
                                      public std::enable_shared_from_this<StatusPageIncidentsView> {
public:
    struct Ports : presentation::EventListPorts {
        api::IncidentEndpoints& api;
    };

    StatusPageIncidentsView(Ports ports, const std::string& pageID);

    const std::shared_ptr<StatusPageIncidentsViewModel> viewModel;

    /// The incident that is open over the list.
    presentation::Opened<IncidentDetailView> presentedIncident{*this};
    /// The form of a new incident.
    presentation::Opened<CreateIncidentView> showCreateIncident{*this};

    std::vector<IncidentRow> rows() const;

    /// Opens the incident of that row; nothing if it has gone meanwhile.
    void openIncident(const std::string& id);
    /// Brings the list back into sight, and so up to date.
    void closeIncident();
    /// Of `presentedIncident`; null without one.
    const std::shared_ptr<IncidentDetailView>& detail() const { return presentedIncident.screen(); }

    void openCreateIncident();
    /// What the sheet shows; null while it is down.
    const std::shared_ptr<CreateIncidentView>& form() const { return showCreateIncident.screen(); }

private:
    presentation::FetchedRecords& fetched() const override { return *viewModel; }
    std::vector<std::shared_ptr<presentation::GuardedScreen>> inFront() const override { return {detail(), form()}; }

    IncidentDetailView::Owner ownerOf(const std::string& opened);
    CreateIncidentView::Owner ownerOfForm();
    static support::Task<void> lookAgain(std::shared_ptr<StatusPageIncidentsView> self, std::string id);
    void takeBack(const model::Incident& changed);
    void dismiss(const std::string& id);
    void loadIfInSight();

    const Ports ports_;
};

}  // namespace larkspan::incidents
