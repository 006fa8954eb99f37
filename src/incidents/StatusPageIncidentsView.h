#pragma once

#include <memory>
#include <string>
#include <vector>

#include "api/IncidentEndpoints.h"
#include "incidents/StatusPageIncidentsViewModel.h"
#include "presentation/forms/EventListPorts.h"
#include "presentation/screens/ListScreen.h"
#include "presentation/screens/Opened.h"
#include "support/Task.h"

namespace larkspan::incidents {

class CreateIncidentView;
class IncidentDetailView;
struct IncidentRow;

/// The incidents of one page: their list, the opened incident and the form of a new one. Main thread only.
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

    /// Opens the incident in that row; does nothing if it no longer exists.
    void openIncident(const std::string& id);
    /// Shows the list again, which fetches it.
    void closeIncident();
    /// The screen of `presentedIncident`; null without one.
    const std::shared_ptr<IncidentDetailView>& detail() const { return presentedIncident.screen(); }

    void openCreateIncident();
    /// The sheet's screen; null while it is closed.
    const std::shared_ptr<CreateIncidentView>& form() const { return showCreateIncident.screen(); }

private:
    presentation::FetchedRecords& fetched() const override { return *viewModel; }
    std::vector<std::shared_ptr<presentation::GuardedScreen>> inFront() const override;

    std::shared_ptr<IncidentDetailView> detailOf(const model::Incident& opened);
    std::shared_ptr<CreateIncidentView> newForm();
    static support::Task<void> reloadList(std::shared_ptr<StatusPageIncidentsView> self, std::string id);
    void updateDetail(const model::Incident& changed);
    void dismiss(const std::string& id);
    void loadIfVisible();

    const Ports ports_;
};

}  // namespace larkspan::incidents
