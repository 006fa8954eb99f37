#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "api/APIKeyStore.h"
#include "api/KestruneAPI.h"
#include "core/AppStateManager.h"
#include "core/QuitGuard.h"
#include "platform/Clock.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "platform/LocaleText.h"
#include "platform/Timers.h"
#include "presentation/screens/Content.h"
#include "presentation/screens/Opened.h"
#include "presentation/shapes/Headline.h"
#include "presentation/shapes/Marker.h"
#include "presentation/shapes/Placeholder.h"
#include "support/AfterChanges.h"
#include "support/Observable.h"
#include "support/Time.h"
#include "workspace/DashboardOperationalSummary.h"
#include "workspace/Settings.h"
#include "workspace/StatusPageDetailView.h"
#include "workspace/StatusPageRow.h"

namespace larkspan::workspace {

/// The dashboard: which of its states shows, and every word in it. It owns no data; all comes from the account's state.
/// Main thread only.
class Dashboard final : public support::Observable,
                        public core::QuitGuard,
                        public std::enable_shared_from_this<Dashboard> {
public:
    struct Ports {
        platform::Executor& main;
        platform::Timers& timers;
        const platform::Clock& clock;
        platform::CredentialStore& credentials;
        api::APIKeyStore& keys;
        std::shared_ptr<core::AppStateManager> appState;
        const platform::LocaleText& locale;
        platform::LinkOpener& links;
        api::KestruneAPI& api;
    };

    static constexpr std::string_view windowTitle = "Kestrune";
    static constexpr std::string_view listHeading = "Status Pages";
    static constexpr std::string_view refreshFailedText = "Refresh failed. Data may be stale.";
    static constexpr std::array<std::chrono::seconds, 4> refreshIntervals{
        std::chrono::seconds(30), std::chrono::seconds(60), std::chrono::seconds(120), std::chrono::seconds(300)};

    explicit Dashboard(Ports ports);

    /// The settings sheet.
    presentation::Opened<Settings> showingSettings{*this};
    /// The page that the user has opened, or that the menu has.
    support::Published<std::optional<std::string>> selectedPageId{*this};
    /// The selected page's own screen.
    presentation::Opened<StatusPageDetailView> openedPage{*this};
    /// The reference of the text after "Updated "; it ticks, so that the text ages on screen.
    support::Published<support::Time> currentTime;
    /// The key that the demo's settings tell; empty in the program. Set before they are opened.
    std::string demoKey;

    /// Calls `observer` before anything changes that the dashboard shows, the account's state included.
    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer);

    presentation::Content content() const;
    /// What stands in place of the list; all empty while there is one.
    presentation::Placeholder placeholder() const;
    presentation::Headline headline() const { return DashboardOperationalSummary::of(state()).headline(); }
    std::vector<StatusPageRow> rows() const;
    /// The place of the selected page among the rows; absent if it is not there.
    std::optional<std::size_t> selectedRow() const;
    bool showsRefreshFailure() const;
    /// Of when the data is, or that it is being fetched.
    presentation::Marker status() const;
    bool isRefreshEnabled() const;

    void refresh() { ports_.appState->refreshNow(); }
    void chooseRefreshInterval(std::chrono::seconds interval);

    /// Selects the page and opens it, if the account has it. One that is open already stays as it is; where something
    /// is typed in another that would be lost, the user is asked first.
    void openPage(const std::string& id);
    /// The user has gone back to the list.
    void closePage();

    bool asksBeforeQuitting(std::function<void()> quit) override { return asksBefore(quit); }

    void openSettings();
    /// The sheet has closed, in whatever way; a key that was saved takes effect now.
    void closeSettings();
    /// What the sheet shows; null while it is down.
    const std::shared_ptr<Settings>& settings() const { return showingSettings.screen(); }

private:
    const core::AppStateManager& state() const { return *ports_.appState; }
    const model::StatusPage* selectedPage() const;
    StatusPageDetailView::Ports portsOfPage() const;
    bool asksBefore(const std::function<void()>& leave);
    void showPage(const std::string& id);
    /// Time goes on, for what shows a distance from now.
    void tick();
    /// Takes over what the account's list has made of the opened page.
    void followOpenedPage();

    Ports ports_;
    std::unique_ptr<platform::Timer> tick_;
    support::Subscription openStatusPage_;
    std::size_t followedLists_ = 0;
    const presentation::AfterChanges accountChanges_;
};

/// The label of one interval choice: "Every 30 seconds", "Every 1 minute", "Every 2 minutes".
std::string refreshIntervalLabel(std::chrono::seconds interval);

}  // namespace larkspan::workspace
