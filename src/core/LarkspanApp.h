#pragma once

#include <memory>

#include "core/AppStateManager.h"
#include "core/MainWindowLifecycleDelegate.h"
#include "platform/WindowSystem.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::core {

/// The running program: its state object, the rules of its window, and the order in which they start. Main thread only.
/// Constructed before the event loop runs; start-up happens in the loop's first turns.
class LarkspanApp final : public support::Observable {
public:
    explicit LarkspanApp(const AppStateManager::Ports& ports);

    /// Whether the about box is shown.
    support::Published<bool> showingAbout{*this, false};

    const std::shared_ptr<AppStateManager>& appState() const { return appState_; }
    MainWindowLifecycleDelegate& windowLifecycleDelegate() { return *windowLifecycleDelegate_; }

    void showDashboardWindow() { core::showDashboardWindow(windows_, windowLifecycleDelegate_.get()); }

    /// Ends the program for the user; asks first if something would be lost.
    void quitApp() { appState_->quitApp(); }
    /// Ends the program without asking. Nothing is saved: there is nothing to save.
    void terminate() { windows_.terminate(); }

private:
    static support::Task<void> startUp(
        std::shared_ptr<AppStateManager> appState, std::weak_ptr<MainWindowLifecycleDelegate> windowRules);

    platform::WindowSystem& windows_;
    std::shared_ptr<AppStateManager> appState_;
    std::shared_ptr<MainWindowLifecycleDelegate> windowLifecycleDelegate_;
};

}  // namespace larkspan::core
