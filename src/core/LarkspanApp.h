#pragma once

#include <memory>

#include "core/AppStateManager.h"
#include "core/MainWindowLifecycleDelegate.h"
#include "platform/WindowSystem.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::core {

/// The running program: its one state object, its one window's rules, and the order in which they start.
/// Main thread only. Made before the event loop runs; its start-up happens in the loop's first turns.
class LarkspanApp final : public support::Observable {
public:
    LarkspanApp(const AppStateManager::Ports& ports, platform::WindowSystem& windows);

    /// The about box is up.
    support::Published<bool> showingAbout{*this, false};

    const std::shared_ptr<AppStateManager>& appState() const { return appState_; }
    MainWindowLifecycleDelegate& windowLifecycleDelegate() { return *windowLifecycleDelegate_; }

    void showDashboardWindow() { core::showDashboardWindow(windows_, windowLifecycleDelegate_.get()); }

    /// Ends the program. Nothing is saved: there is nothing to save.
    void quitApp() { windows_.terminate(); }

private:
    static support::Task<void> startUp(std::shared_ptr<AppStateManager> appState);

    platform::WindowSystem& windows_;
    std::shared_ptr<AppStateManager> appState_;
    std::shared_ptr<MainWindowLifecycleDelegate> windowLifecycleDelegate_;
};

}  // namespace larkspan::core
