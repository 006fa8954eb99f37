#pragma once

#include <chrono>
#include <cstddef>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/APIKeyVerification.h"
#include "core/AccountFetch.h"
#include "core/ChangeNotifications.h"
#include "core/InProcessNotifications.h"
#include "core/MainWindowLifecycleDelegate.h"
#include "core/OverallStatus.h"
#include "core/QuitGuard.h"
#include "core/UpdaterController.h"
#include "model/records/Incident.h"
#include "model/records/Maintenance.h"
#include "model/records/StatusPage.h"
#include "platform/Clock.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/NetworkPathMonitor.h"
#include "platform/NotificationCenter.h"
#include "platform/StatusItem.h"
#include "platform/Timers.h"
#include "platform/WindowSystem.h"
#include "support/Observable.h"
#include "support/Task.h"
#include "support/Time.h"

namespace larkspan::api {

class KestruneAPI;

}  // namespace larkspan::api

namespace larkspan::core {

/// The account as last fetched, the poll that keeps it up to date, and the panel's item that shows it. Everything that
/// the panel and the dashboard show is in its published fields. Main thread only; its tasks keep it alive.
class AppStateManager final : public support::Observable, public std::enable_shared_from_this<AppStateManager> {
public:
    /// The services that it uses; all must outlive its tasks.
    struct Ports {
        platform::Executor& main;
        platform::Timers& timers;
        const platform::Clock& clock;
        platform::NotificationCenter& notifications;
        platform::NetworkPathMonitor& networkMonitor;
        platform::StatusItem& statusItem;
        std::shared_ptr<UpdaterController> updater;
        platform::WindowSystem& windows;
        platform::CredentialStore& credentials;
        api::KestruneAPI& api;
    };

    using Interval = std::chrono::duration<double>;
    static constexpr Interval shortestInterval{30.0};

    /// Asks for permission to notify and starts to watch the network. Fetches nothing yet.
    static std::shared_ptr<AppStateManager> make(const Ports& ports);

    support::Published<std::vector<model::StatusPage>> statusPages{*this};
    support::Published<OverallStatus> overallStatus{*this, OverallStatus::unknown};
    /// All incidents of the account as the service lists them; a change on the service is visible after the next cycle.
    support::Published<std::vector<model::Incident>> incidents{*this};
    support::Published<std::vector<model::Maintenance>> maintenances{*this};
    /// Whether a cycle runs while there is nothing to show yet.
    support::Published<bool> isLoading{*this, false};
    /// The end of the last cycle that succeeded.
    support::Published<std::optional<support::Time>> lastRefresh{*this};
    /// The error of the latest cycle; null if it succeeded. Cleared when a cycle starts.
    support::Published<std::exception_ptr> refreshError{*this};
    support::Published<bool> isReachable{*this, true};
    /// Whether a cycle has succeeded since the start or since the key was deleted.
    support::Published<bool> hasCompletedInitialFetch{*this, false};

    /// Runs one cycle; never throws. Does nothing while another cycle runs.
    support::Task<void> refresh();

    /// Starts a cycle that the user asked for and returns at once. Unlike a poll, it allows the credential store to
    /// show a prompt.
    void refreshNow();

    /// Starts or restarts the poll; its first cycle starts one interval from now.
    void startPollTimer();

    /// How often the lists have been published, which tells a list that was fetched again from one that was not.
    std::size_t publishedLists() const { return publishedLists_; }

    Interval refreshInterval() const { return refreshInterval_; }

    /// Polls every `interval`, or at the shortest one allowed, counted from now. Not kept when the program ends.
    void setRefreshInterval(Interval interval);

    /// Asks the service about the trimmed `key`. Changes neither the store nor any field; never throws.
    support::Task<APIKeyVerificationResult> verifyAPIKey(std::string key);

    /// Clears the account after its key was deleted. A running cycle may still publish what it fetches.
    void clearAccountData();

    /// Puts the item into the panel and updates it with every change. Called once, when the program has started.
    void setupStatusItem(std::weak_ptr<MainWindowLifecycleDelegate> windowRules);

    /// Builds the item's icon and menu again; does nothing without an item.
    void rebuildMenu();

    /// The actions of the menu's rows.
    void openDashboard();
    void openStatusPage(const std::string& id);
    void openIncident(const std::string& id);
    void checkForUpdates();
    /// Ends the program. If something would be lost, the user is asked first, in the window.
    void quitApp();
    void guardQuitting(std::weak_ptr<QuitGuard> guard) { quitGuard_ = std::move(guard); }

    /// Null until the item is set up.
    const std::shared_ptr<UpdaterController>& updaterController() const { return updaterController_; }

    /// Carries the menu's requests to show a record.
    InProcessNotifications& inProcessNotifications() { return inProcessNotifications_; }

private:
    explicit AppStateManager(const Ports& ports);

    static support::Task<void> runCycle(std::shared_ptr<AppStateManager> self);
    static support::Task<APIKeyVerificationResult> verify(std::shared_ptr<AppStateManager> self, std::string key);
    void publish(AccountLists lists);
    void tellOfChanges();
    void endInFailure(std::exception_ptr failure);
    void updateOverallStatus();
    void startCycle();
    void watchNetwork();
    void startTimestampTimer();
    std::function<void()> rebuildingMenuNextTurn();
    void perform(const platform::MenuRow& row);

    Ports ports_;
    Interval refreshInterval_{60.0};
    std::unique_ptr<platform::Timer> pollTimer_;
    bool isFetching_ = false;
    std::size_t publishedLists_ = 0;
    ChangeNotifications changeNotifications_;
    InProcessNotifications inProcessNotifications_;

    platform::StatusItem* statusItem_ = nullptr;
    std::weak_ptr<MainWindowLifecycleDelegate> windowRules_;
    std::weak_ptr<QuitGuard> quitGuard_;
    std::shared_ptr<UpdaterController> updaterController_;
    std::unique_ptr<platform::Timer> timestampTimer_;
    support::Subscription menuBarCancellable_;
};

}  // namespace larkspan::core
