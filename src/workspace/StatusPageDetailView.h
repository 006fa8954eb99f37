#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string_view>
#include <variant>

#include "api/KestruneAPI.h"
#include "core/AppStateManager.h"
#include "model/records/StatusPage.h"
#include "platform/Clock.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "platform/LocaleText.h"
#include "support/Observable.h"
#include "support/Time.h"
#include "workspace/StatusPageOverviewView.h"

namespace larkspan::components {
class StatusPageComponentsView;
}
namespace larkspan::incidents {
class StatusPageIncidentsView;
}
namespace larkspan::maintenances {
class StatusPageMaintenancesView;
}
namespace larkspan::monitors {
class StatusPageMonitorsView;
}
namespace larkspan::presentation {
struct EventListPorts;
class ListScreen;
}  // namespace larkspan::presentation

namespace larkspan::workspace {

/// One opened status page: its tabs, of which only the selected one has a screen. Main thread only.
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

    /// The record that the dashboard passed in last.
    support::Published<model::StatusPage> page;
    /// The time of the last tick, the reference of the relative times in the overview.
    support::Published<support::Time> currentTime;

    /// Calls `observer` before anything that the page shows changes, including the account's state.
    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer);

    Tab selectedTab() const { return static_cast<Tab>(opened_->index()); }
    /// Destroys the screen of the selected tab and creates that of `tab`; does nothing if `tab` is selected already.
    void select(Tab tab);
    /// Selects the next or the previous tab, wrapping around at the ends.
    void selectNext();
    void selectPrevious();

    /// Fetches the data of the selected tab again; the overview uses the account's lists.
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

    /// Whether the page must not be removed automatically: text would be lost, or an action has not ended.
    bool isHeld() const;
    /// As `GuardedScreen::asksBefore`, for the screens that are open in the page.
    bool asksBefore(const std::function<void()>& leave);

    /// Opens the public page; any other than a web address is not opened.
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
