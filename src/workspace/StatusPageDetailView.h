#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string_view>
#include <variant>

#include "api/KestruneAPI.h"
#include "components/StatusPageComponentsView.h"
#include "core/AppStateManager.h"
#include "incidents/StatusPageIncidentsView.h"
#include "maintenances/StatusPageMaintenancesView.h"
#include "model/records/StatusPage.h"
#include "monitors/StatusPageMonitorsView.h"
#include "platform/Clock.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "platform/LocaleText.h"
#include "presentation/forms/EventListPorts.h"
#include "support/Observable.h"
#include "support/Time.h"
#include "workspace/StatusPageOverviewView.h"

namespace larkspan::workspace {

/// One status page, opened: its tabs, of which the selected one alone has a screen. Main thread only.
class StatusPageDetailView final : public support::Observable {
public:
    struct Ports {
        platform::Executor& main;
        const platform::Clock& clock;
        const platform::LocaleText& locale;
        platform::LinkOpener& links;
        platform::CredentialStore& credentials;
        api::KestruneAPI& api;
        std::shared_ptr<core::AppStateManager> appState;
    };

    enum class Tab { overview, incidents, monitors, components, maintenances };

    static constexpr std::string_view pickerLabel = "View";
    static constexpr std::array<Tab, 5> tabs{
        Tab::overview, Tab::incidents, Tab::monitors, Tab::components, Tab::maintenances};

    StatusPageDetailView(Ports ports, model::StatusPage opened);

    /// The record as the dashboard last handed it in.
    support::Published<model::StatusPage> page;
    /// When the page was last told that time goes on, which moves the distances in its overview.
    support::Published<support::Time> currentTime;

    /// Calls `observer` before anything changes that the page shows, the account's state included.
    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer);

    Tab selectedTab() const { return static_cast<Tab>(opened_->index()); }
    /// Leaves the screen of the tab that was selected, and makes that of `tab` anew; the selected tab stays as it is.
    void select(Tab tab);
    /// The tab beside the selected one, forwards or backwards; over the ends it goes round.
    void selectNext();
    void selectPrevious();

    /// Fetches anew what the selected tab shows; the overview is made of the account's lists.
    void refresh();

    StatusPageOverviewView overview() const;
    /// The screen of the tab "Incidents"; null while another is selected.
    std::shared_ptr<incidents::StatusPageIncidentsView> incidents() const { return opened<Incidents>(); }
    /// The screen of the tab "Monitors"; null while another is selected.
    std::shared_ptr<monitors::StatusPageMonitorsView> monitors() const { return opened<Monitors>(); }
    /// The screen of the tab "Components"; null while another is selected.
    std::shared_ptr<components::StatusPageComponentsView> components() const { return opened<Components>(); }
    /// The screen of the tab "Maintenances"; null while another is selected.
    std::shared_ptr<maintenances::StatusPageMaintenancesView> maintenances() const { return opened<Maintenances>(); }

    /// The page is not to go by itself: something would be lost with it, or an order has not ended.
    bool isHeld() const;
    /// As `GuardedScreen` has it, for what is open in the page.
    bool asksBefore(const std::function<void()>& leave);

    /// Opens the page as the public sees it; what is no web address is not opened.
    void openPublicURL() const;

private:
    using Incidents = std::shared_ptr<incidents::StatusPageIncidentsView>;
    using Monitors = std::shared_ptr<monitors::StatusPageMonitorsView>;
    using Components = std::shared_ptr<components::StatusPageComponentsView>;
    using Maintenances = std::shared_ptr<maintenances::StatusPageMaintenancesView>;
    /// The screen of the selected tab, in the order of the tabs; the overview is made for each look at it.
    using OpenedTab = std::variant<std::monostate, Incidents, Monitors, Components, Maintenances>;

    /// The screen of the selected tab; null for the overview.
    presentation::ListScreen* list() const;
    OpenedTab screenOf(Tab tab) const;
    presentation::EventListPorts eventPorts() const;

    template <typename Screen>
    Screen opened() const
    {
        const auto* const screen = std::get_if<Screen>(&*opened_);
        return screen ? *screen : nullptr;
    }

    Ports ports_;
    support::Published<OpenedTab> opened_{*this};
};

/// The label of a tab's segment.
std::string_view rawValue(StatusPageDetailView::Tab tab);

}  // namespace larkspan::workspace
