#include "core/MainWindowLifecycleDelegate.h"

#include <algorithm>

#include "support/WhileAlive.h"

namespace larkspan::core {

namespace {

void bringForward(platform::Window& window)
{
    window.deminiaturize();
    window.makeKeyAndOrderFront();
}

}  // namespace

MainWindowLifecycleDelegate::MainWindowLifecycleDelegate(
    platform::WindowSystem& windows, platform::StatusItem& statusItem, platform::Executor& main)
    : windows_(windows)
    , statusItem_(statusItem)
    , main_(main)
{
}

void MainWindowLifecycleDelegate::applicationDidFinishLaunching()
{
    main_.post(support::whileAlive(weak_from_this(), &MainWindowLifecycleDelegate::adoptDashboardWindow));
    statusItem_.onShownChanged(
        support::whileAlive(weak_from_this(), &MainWindowLifecycleDelegate::bringBackIfStranded));
}

void MainWindowLifecycleDelegate::applicationDidFinishLaunchingMinimized(platform::Timers& timers)
{
    applicationDidFinishLaunching();
    isHidden_ = true;
    waitForAPanel_ = timers.every(timeForAPanel, [this] {
        bringBackIfStranded();
        waitForAPanel_.reset();
    });
}

void MainWindowLifecycleDelegate::applicationDidBecomeActive()
{
    adoptDashboardWindow();
}

bool MainWindowLifecycleDelegate::applicationShouldHandleReopen(bool /*hasVisibleWindows*/)
{
    bringDashboardWindowForward();
    return true;
}

bool MainWindowLifecycleDelegate::windowShouldClose()
{
    if (const auto window = dashboardWindow_.lock()) window->miniaturize();
    return false;
}

void MainWindowLifecycleDelegate::windowDidNotMiniaturize()
{
    const auto window = dashboardWindow_.lock();
    if (!window || !statusItem_.isShown()) return;
    window->hide();
    isHidden_ = true;
}

void MainWindowLifecycleDelegate::bringBackIfStranded()
{
    if (isHidden_ && !statusItem_.isShown()) bringDashboardWindowForward();
}

void MainWindowLifecycleDelegate::adoptDashboardWindow()
{
    if (!dashboardWindow_.expired()) return;
    const auto windows = windows_.windows();
    const auto found = std::ranges::find_if(
        windows, [](const auto& window) { return window->isVisible() || window->canBecomeKeyWindow(); });
    if (found == windows.end()) return;
    dashboardWindow_ = *found;
    (*found)->setDelegate(weak_from_this());
}

void MainWindowLifecycleDelegate::bringDashboardWindowForward()
{
    adoptDashboardWindow();
    if (const auto window = dashboardWindow_.lock()) bringForward(*window);
    isHidden_ = false;
}

void showDashboardWindow(platform::WindowSystem& windows, MainWindowLifecycleDelegate* delegate)
{
    windows.activateIgnoringOtherApps();
    if (delegate) {
        delegate->bringDashboardWindowForward();
        return;
    }
    for (const auto& window : windows.windows()) {
        if (window->canBecomeKeyWindow()) bringForward(*window);
    }
}

}  // namespace larkspan::core
