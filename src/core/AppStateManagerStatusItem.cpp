#include <string>
#include <utility>

#include "core/AppStateManager.h"
#include "core/StatusMenu.h"

namespace larkspan::core {

using namespace std::chrono_literals;
using platform::MenuRow;

void AppStateManager::setupStatusItem(std::weak_ptr<MainWindowLifecycleDelegate> windowRules)
{
    windowRules_ = std::move(windowRules);
    statusItem_ = &ports_.statusItem;
    statusItem_->show([weak = weak_from_this()](const MenuRow& row) {
        if (const auto self = weak.lock()) self->perform(row);
    });
    updaterController_ = ports_.updater;
    rebuildMenu();
    startTimestampTimer();
    menuBarCancellable_ = objectWillChange(rebuildingMenuNextTurn());
}

std::function<void()> AppStateManager::rebuildingMenuNextTurn()
{
    // A notice is sent before its change, so the menu is built in the next turn.
    return [&main = ports_.main, weak = weak_from_this()] {
        main.post([weak] {
            if (const auto self = weak.lock()) self->rebuildMenu();
        });
    };
}

void AppStateManager::startTimestampTimer()
{
    timestampTimer_.reset();
    timestampTimer_ = ports_.timers.every(10s, rebuildingMenuNextTurn());
}

void AppStateManager::rebuildMenu()
{
    if (!statusItem_) return;
    const StatusMenuState shown{
        .statusPages = *statusPages,
        .incidents = *incidents,
        .overallStatus = *overallStatus,
        .lastRefresh = *lastRefresh,
        .isReachable = *isReachable,
        .hasRefreshError = *refreshError != nullptr,
        .now = ports_.clock.now(),
    };
    statusItem_->setButton({
        .symbolName = std::string(statusSymbolName(*overallStatus)),
        .accessibilityDescription = std::string(statusSummaryText(*overallStatus)),
        .toolTip = statusTooltip(shown),
    });
    statusItem_->setMenu(menuRows(shown));
}

void AppStateManager::perform(const MenuRow& row)
{
    switch (row.action) {
    case MenuRow::Action::refreshNow: return refreshNow();
    case MenuRow::Action::openDashboard: return openDashboard();
    case MenuRow::Action::openStatusPage: return openStatusPage(row.representedObject);
    case MenuRow::Action::openIncident: return openIncident(row.representedObject);
    case MenuRow::Action::checkForUpdates: return checkForUpdates();
    case MenuRow::Action::quitApp: return quitApp();
    case MenuRow::Action::none: break;
    }
}

void AppStateManager::openDashboard()
{
    const auto rules = windowRules_.lock();
    showDashboardWindow(ports_.windows, rules.get());
}

void AppStateManager::openStatusPage(const std::string& id)
{
    inProcessNotifications_.post(InProcessNotifications::openStatusPage, id);
    openDashboard();
}

void AppStateManager::openIncident(const std::string& id)
{
    inProcessNotifications_.post(InProcessNotifications::openIncident, id);
    openDashboard();
}

void AppStateManager::checkForUpdates()
{
    if (!updaterController_) return;
    updaterController_->checkForUpdates();
    // The result is shown in the window, which may be minimised.
    openDashboard();
}

void AppStateManager::quitApp()
{
    const auto guard = quitGuard_.lock();
    if (guard && guard->asksBeforeQuitting([&windows = ports_.windows] { windows.terminate(); }))
        return openDashboard();
    ports_.windows.terminate();
}

}  // namespace larkspan::core
