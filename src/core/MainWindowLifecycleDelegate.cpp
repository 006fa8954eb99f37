#include "core/MainWindowLifecycleDelegate.h"

#include <algorithm>

namespace larkspan::core {

namespace {

void bringForward(platform::Window& window)
{
    window.deminiaturize();
    window.makeKeyAndOrderFront();
}

}  // namespace

MainWindowLifecycleDelegate::MainWindowLifecycleDelegate(
    platform::WindowSystem& windows, const platform::StatusItem& statusItem, platform::Executor& main)
    : windows_(windows)
    , statusItem_(statusItem)
    , main_(main)
{
}

void MainWindowLifecycleDelegate::applicationDidFinishLaunching()
{
    main_.post([weak = weak_from_this()] {
        if (const auto self = weak.lock()) self->adoptDashboardWindow();
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
    if (window && statusItem_.isShown()) window->hide();
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
