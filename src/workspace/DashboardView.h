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

namespace larkspan::workspace {

class SettingsView;
class StatusPageDetailView;
struct StatusPageRow;

/// The dashboard: its state and its texts. It owns no data; everything comes from the account's state. Main thread
/// only.
class DashboardView final : public support::Observable,
                            public core::QuitGuard,
                            public std::enable_shared_from_this<DashboardView> {
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

    explicit DashboardView(Ports ports);

    /// The settings sheet.
    presentation::Opened<SettingsView> showingSettings{*this};
    /// The page that the user has opened, or that the menu has.
    support::Published<std::optional<std::string>> selectedPageId{*this};
    /// The selected page's own screen.
    presentation::Opened<StatusPageDetailView> openedPage{*this};
    /// The reference of the text after "Updated "; it ticks, so that the text ages on screen.
    support::Published<support::Time> currentTime;
    /// The key that the demo's settings show; empty in the program. Set it before the settings are opened.
    std::string demoKey;

    /// Calls `observer` before anything that the dashboard shows changes, including the account's state.
    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer);

    presentation::Content content() const;
    /// The placeholder in place of the list; empty while there are pages.
    presentation::Placeholder placeholder() const;
    presentation::Headline headline() const { return DashboardOperationalSummary::of(state()).headline(); }
    std::vector<StatusPageRow> rows() const;
    /// The index of the selected page in the rows; absent if it is not there.
    std::optional<std::size_t> selectedRow() const;
    bool showsRefreshFailure() const;
    /// The age of the data, or that it is being fetched.
    presentation::Marker status() const;
    bool isRefreshEnabled() const;

    void refresh() { ports_.appState->refreshNow(); }
    void chooseRefreshInterval(std::chrono::seconds interval);

    /// Selects the page and opens it, if the account has it. A page that is open already does not change; if text in
    /// another page would be lost, the user is asked first.
    void openPage(const std::string& id);
    /// Closes the page because the user has gone back to the list.
    void closePage();

    bool asksBeforeQuitting(std::function<void()> quit) override { return asksBefore(quit); }

    void openSettings();
    /// Called when the sheet has closed in any way; a saved key takes effect now.
    void closeSettings();
    /// The sheet's screen; null while it is closed.
    const std::shared_ptr<SettingsView>& settings() const { return showingSettings.screen(); }

private:
    const core::AppStateManager& state() const { return *ports_.appState; }
    const model::StatusPage* selectedPage() const;
    std::shared_ptr<StatusPageDetailView> screenOf(const model::StatusPage& page) const;
    bool asksBefore(const std::function<void()>& leave);
    void showPage(const std::string& id);
    /// Updates the time, for texts that show a distance from now.
    void tick();
    /// Updates the opened page from the account's list.
    void followOpenedPage();

    Ports ports_;
    std::unique_ptr<platform::Timer> tick_;
    support::Subscription openStatusPage_;
    std::size_t followedLists_ = 0;
    const support::AfterChanges accountChanges_;
};

/// The label of one interval choice: "Every 30 seconds", "Every 1 minute", "Every 2 minutes".
std::string refreshIntervalLabel(std::chrono::seconds interval);

}  // namespace larkspan::workspace
