#pragma once

#include <memory>

#include "platform/Executor.h"
#include "platform/StatusItem.h"
#include "platform/WindowSystem.h"

namespace larkspan::core {

/// The rules of the one window: closing it minimises it, or hides it where the desktop minimises no windows, and
/// whatever needs it brings it back. Main thread only.
class MainWindowLifecycleDelegate final : public platform::WindowDelegate,
                                          public std::enable_shared_from_this<MainWindowLifecycleDelegate> {
public:
    MainWindowLifecycleDelegate(
        platform::WindowSystem& windows, platform::StatusItem& statusItem, platform::Executor& main);

    void applicationDidFinishLaunching();
    void applicationDidBecomeActive();

    /// The program was started again, or picked in the launcher, while it runs. Always handled.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);

    bool windowShouldClose() override;

    /// Hides the window, for as long as a panel shows the item that brings it back.
    void windowDidNotMiniaturize() override;

    /// Takes the first window that is visible or could be the active one, unless one is held already.
    void adoptDashboardWindow();

    /// Adopts if need be, and brings the window forward if there is one.
    void bringDashboardWindowForward();

private:
    void bringBackIfStranded();

    platform::WindowSystem& windows_;
    platform::StatusItem& statusItem_;
    platform::Executor& main_;
    std::weak_ptr<platform::Window> dashboardWindow_;
    bool isHidden_ = false;
};

/// Activates the program and brings the dashboard forward; with no `delegate`, every window that can be active.
void showDashboardWindow(platform::WindowSystem& windows, MainWindowLifecycleDelegate* delegate);

}  // namespace larkspan::core
