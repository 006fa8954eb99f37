#pragma once

#include <chrono>
#include <memory>

#include "platform/Executor.h"
#include "platform/StatusItem.h"
#include "platform/Timers.h"
#include "platform/WindowSystem.h"

namespace larkspan::core {

/// The rules of the window: closing minimises it, or hides it if the desktop minimises no windows, and whatever needs
/// it shows it again. Main thread only.
class MainWindowLifecycleDelegate final : public platform::WindowDelegate,
                                          public std::enable_shared_from_this<MainWindowLifecycleDelegate> {
public:
    MainWindowLifecycleDelegate(
        platform::WindowSystem& windows, platform::StatusItem& statusItem, platform::Executor& main);

    void applicationDidFinishLaunching();

    /// The same for a start in the panel alone: the window, not shown yet, is shown only if there is no panel by the
    /// end of `timeForAPanel`, or when that disappears.
    void applicationDidFinishLaunchingMinimized(platform::Timers& timers);

    /// How long a session may take to start its panel after this program.
    static constexpr std::chrono::seconds timeForAPanel{10};
    void applicationDidBecomeActive();

    /// Called when the program is started again, or chosen in the launcher, while it runs. Always returns true.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);

    bool windowShouldClose() override;

    /// Hides the window, but only while a panel shows the item that can show it again.
    void windowDidNotMiniaturize() override;

    /// Takes the first window that is visible or can become active, unless it has one already.
    void adoptDashboardWindow();

    /// Adopts a window if necessary, and brings it to the front if there is one.
    void bringDashboardWindowForward();

private:
    void bringBackIfStranded();

    platform::WindowSystem& windows_;
    platform::StatusItem& statusItem_;
    platform::Executor& main_;
    std::weak_ptr<platform::Window> dashboardWindow_;
    bool isHidden_ = false;
    std::unique_ptr<platform::Timer> waitForAPanel_;
};

/// Activates the program and brings the dashboard to the front; without a `delegate`, every window that can become
/// active.
void showDashboardWindow(platform::WindowSystem& windows, MainWindowLifecycleDelegate* delegate);

}  // namespace larkspan::core
