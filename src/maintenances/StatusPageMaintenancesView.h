#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "api/ComponentEndpoints.h"
#include "api/MaintenanceEndpoints.h"
#include "api/MonitorEndpoints.h"
#include "maintenances/CreateMaintenanceView.h"
#include "maintenances/MaintenanceDetailView.h"
#include "maintenances/MaintenanceRow.h"
#include "maintenances/StatusPageMaintenancesViewModel.h"
#include "platform/Clock.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "platform/LocaleText.h"
#include "presentation/Content.h"
#include "presentation/Placeholder.h"
#include "support/Observable.h"

namespace larkspan::maintenances {

/// The maintenances of one page: their list, the one that is opened and the form of a new one. Unlike that of
/// incidents, the list takes over at once what is changed or deleted in front of it. Main thread only.
class StatusPageMaintenancesView final : public support::Observable,
                                         public std::enable_shared_from_this<StatusPageMaintenancesView> {
public:
    struct Ports {
        platform::Executor& main;
        api::MaintenanceEndpoints& maintenances;
        api::ComponentEndpoints& components;
        api::MonitorEndpoints& monitors;
        platform::CredentialStore& credentials;
        const platform::Clock& clock;
        const platform::LocaleText& locale;
        platform::LinkOpener& links;
    };

    StatusPageMaintenancesView(Ports ports, const std::string& pageId);

    const std::shared_ptr<StatusPageMaintenancesViewModel> viewModel;

    /// The maintenance that was opened in front of the list, as it was then.
    support::Published<std::optional<model::Maintenance>> presentedMaintenance{*this};
    /// The form of a new maintenance is up.
    support::Published<bool> showCreateSheet{*this, false};

    /// Calls `observer` before anything changes that the list shows, or what stands in front of it.
    [[nodiscard]] std::array<support::Subscription, 2> observe(const std::function<void()>& observer);

    /// The list came into sight, for the first time or again.
    void appear() { viewModel->load(); }
    /// The user asked for a load. That is worth a prompt of the credential store.
    void refresh();

    presentation::Content content() const { return viewModel->content(); }
    /// What stands in place of the list; all empty while there is one.
    presentation::Placeholder placeholder() const;
    std::vector<MaintenanceRow> rows() const;

    /// Opens the maintenance of that row; nothing if it has gone meanwhile.
    void openMaintenance(const std::string& id);
    /// Brings the list back into sight, and so up to date.
    void closeMaintenance();
    /// Of `presentedMaintenance`; null without one.
    const std::shared_ptr<MaintenanceDetailView>& detail() const { return detail_; }

    void openCreateMaintenance();
    /// What the sheet shows; null while it is down.
    const std::shared_ptr<CreateMaintenanceView>& form() const { return form_; }

    /// Leaving the screen would lose what has been typed.
    bool hasUnsavedText() const;

private:
    MaintenanceDetailView::Owner ownerOf(const std::string& opened);
    CreateMaintenanceView::Owner ownerOfForm();
    void closeMaintenance(const std::string& id);
    void closeCreateMaintenance();

    const Ports ports_;
    std::shared_ptr<MaintenanceDetailView> detail_;
    std::shared_ptr<CreateMaintenanceView> form_;
};

}  // namespace larkspan::maintenances
