#include "core/MainWindowLifecycleDelegate.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "fakes/FakeStatusItem.h"
#include "fakes/FakeWindowSystem.h"
#include "fakes/ManualExecutor.h"
#include "fakes/ManualTimers.h"

namespace larkspan::core {

namespace {

using namespace std::chrono_literals;
using Calls = std::vector<std::string>;

const Calls broughtForward{"deminiaturize", "makeKeyAndOrderFront"};

class WindowLifecycle : public testing::Test {
protected:
    fakes::ManualExecutor main;
    fakes::FakeWindowSystem windows;
    fakes::FakeStatusItem statusItem;
    fakes::ManualTimers timers;
    std::shared_ptr<MainWindowLifecycleDelegate> delegate
        = std::make_shared<MainWindowLifecycleDelegate>(windows, statusItem, main);

    void startMinimized()
    {
        delegate->applicationDidFinishLaunchingMinimized(timers);
        main.run();
    }
};

TEST_F(WindowLifecycle, ClosingMinimisesTheWindowAndDoesNotCloseIt)
{
    const auto window = windows.addWindow();
    delegate->adoptDashboardWindow();
    EXPECT_FALSE(window->delegate.lock()->windowShouldClose());
    EXPECT_EQ(window->calls, (Calls{"miniaturize"}));
}

TEST_F(WindowLifecycle, AWindowThatTheDesktopDoesNotMinimiseIsHiddenAndBroughtBackByTheMenu)
{
    const auto window = windows.addWindow();
    delegate->adoptDashboardWindow();
    delegate->windowShouldClose();
    window->delegate.lock()->windowDidNotMiniaturize();
    EXPECT_EQ(window->calls, (Calls{"miniaturize", "hide"}));
    window->calls.clear();
    showDashboardWindow(windows, delegate.get());
    EXPECT_EQ(window->calls, broughtForward);
}

TEST_F(WindowLifecycle, AWindowThatTheDesktopDoesNotMinimiseStaysWhereNoPanelShowsTheItem)
{
    statusItem.hasPanel = false;
    const auto window = windows.addWindow();
    delegate->adoptDashboardWindow();
    delegate->windowShouldClose();
    delegate->windowDidNotMiniaturize();
    EXPECT_EQ(window->calls, (Calls{"miniaturize"}));
}

TEST_F(WindowLifecycle, AHiddenWindowComesBackWhenThePanelGoesAway)
{
    const auto window = windows.addWindow();
    delegate->applicationDidFinishLaunching();
    main.run();
    delegate->windowShouldClose();
    delegate->windowDidNotMiniaturize();
    window->calls.clear();
    statusItem.setPanel(true);
    EXPECT_EQ(window->calls, Calls{});
    statusItem.setPanel(false);
    EXPECT_EQ(window->calls, broughtForward);
    window->calls.clear();
    statusItem.setPanel(true);
    statusItem.setPanel(false);
    EXPECT_EQ(window->calls, Calls{}) << "it was brought back already";
}

TEST_F(WindowLifecycle, StartedInThePanelAloneTheWindowIsShownByTheMenu)
{
    const auto window = windows.addWindow();
    window->visible = false;
    startMinimized();
    timers.advance(1h);
    EXPECT_EQ(window->calls, Calls{});
    showDashboardWindow(windows, delegate.get());
    EXPECT_EQ(window->calls, broughtForward);
}

TEST_F(WindowLifecycle, StartedInThePanelAloneTheWindowIsShownOnceWhereNoPanelComesInTime)
{
    statusItem.hasPanel = false;
    const auto window = windows.addWindow();
    window->visible = false;
    startMinimized();
    timers.advance(9'999ms);
    EXPECT_EQ(window->calls, Calls{}) << "the session may still be starting its panel";
    timers.advance(1ms);
    EXPECT_EQ(window->calls, broughtForward);
    timers.advance(1h);
    EXPECT_EQ(window->calls, broughtForward);
}

TEST_F(WindowLifecycle, StartedInThePanelAloneBeforeThePanelTheWindowStaysHidden)
{
    statusItem.hasPanel = false;
    const auto window = windows.addWindow();
    window->visible = false;
    startMinimized();
    timers.advance(3s);
    statusItem.setPanel(true);
    timers.advance(1h);
    EXPECT_EQ(window->calls, Calls{});
    EXPECT_TRUE(timers.periods().empty()) << "nothing wakes the program up for that any more";
}

TEST_F(WindowLifecycle, StartedInThePanelAloneTheWindowComesWhenThePanelGoesAway)
{
    const auto window = windows.addWindow();
    window->visible = false;
    startMinimized();
    statusItem.setPanel(false);
    EXPECT_EQ(window->calls, broughtForward);
}

TEST_F(WindowLifecycle, AWindowThatWasOnlyMinimisedStaysSoWhenThePanelGoesAway)
{
    const auto window = windows.addWindow();
    delegate->applicationDidFinishLaunching();
    main.run();
    delegate->windowShouldClose();
    window->calls.clear();
    statusItem.setPanel(false);
    EXPECT_EQ(window->calls, Calls{});
}

TEST_F(WindowLifecycle, APanelThatGoesAwayAfterTheDelegateIsGoneBringsNothingBack)
{
    const auto window = windows.addWindow();
    delegate->applicationDidFinishLaunching();
    main.run();
    delegate->windowDidNotMiniaturize();
    window->calls.clear();
    delegate.reset();
    statusItem.setPanel(false);
    EXPECT_EQ(window->calls, Calls{});
}

TEST_F(WindowLifecycle, ClosingBeforeTheAdoptionMinimisesNothingAndOpeningTheDashboardThenAdopts)
{
    const auto window = windows.addWindow();
    EXPECT_FALSE(delegate->windowShouldClose());
    delegate->windowDidNotMiniaturize();
    EXPECT_EQ(window->calls, Calls{});
    showDashboardWindow(windows, delegate.get());
    EXPECT_EQ(window->calls, broughtForward);
    EXPECT_EQ(window->delegate.lock(), delegate);
}

TEST_F(WindowLifecycle, OpeningTheDashboardAfterClosingBringsItBack)
{
    const auto window = windows.addWindow();
    delegate->adoptDashboardWindow();
    delegate->windowShouldClose();
    window->calls.clear();
    showDashboardWindow(windows, delegate.get());
    EXPECT_EQ(window->calls, broughtForward);
    EXPECT_EQ(windows.activations, 1);
}

TEST_F(WindowLifecycle, ReopeningWithTheWindowMinimisedRestoresIt)
{
    const auto window = windows.addWindow();
    EXPECT_TRUE(delegate->applicationShouldHandleReopen(false));
    EXPECT_EQ(window->calls, broughtForward);
}

TEST_F(WindowLifecycle, ReopeningIsHandledWhateverIsVisibleAndWithoutAWindowToo)
{
    EXPECT_TRUE(delegate->applicationShouldHandleReopen(true));
    EXPECT_TRUE(delegate->applicationShouldHandleReopen(false));
}

TEST_F(WindowLifecycle, LaunchingAdoptsTheWindowInALaterTurn)
{
    const auto window = windows.addWindow();
    delegate->applicationDidFinishLaunching();
    EXPECT_TRUE(window->delegate.expired());
    main.run();
    EXPECT_EQ(window->delegate.lock(), delegate);
}

TEST_F(WindowLifecycle, LaunchingAfterTheDelegateIsGoneDoesNothing)
{
    const auto window = windows.addWindow();
    delegate->applicationDidFinishLaunching();
    delegate.reset();
    main.run();
    EXPECT_TRUE(window->delegate.expired());
}

TEST_F(WindowLifecycle, TheFirstWindowThatIsVisibleOrCanBeActiveIsAdopted)
{
    const auto neither = windows.addWindow();
    neither->visible = neither->canBecomeKey = false;
    const auto onlyKey = windows.addWindow();
    onlyKey->visible = false;
    const auto visible = windows.addWindow();
    delegate->adoptDashboardWindow();
    EXPECT_TRUE(neither->delegate.expired());
    EXPECT_FALSE(onlyKey->delegate.expired());
    EXPECT_TRUE(visible->delegate.expired());
}

TEST_F(WindowLifecycle, WithNoSuchWindowTheNextActivationTriesAgain)
{
    delegate->adoptDashboardWindow();
    const auto window = windows.addWindow();
    delegate->applicationDidBecomeActive();
    EXPECT_EQ(window->delegate.lock(), delegate);
}

TEST_F(WindowLifecycle, AnAdoptedWindowIsKeptWhileItLives)
{
    windows.addWindow();
    delegate->adoptDashboardWindow();
    windows.shown.insert(windows.shown.begin(), std::make_shared<fakes::FakeWindow>());
    delegate->adoptDashboardWindow();
    EXPECT_TRUE(windows.shown.front()->delegate.expired());
}

TEST_F(WindowLifecycle, IfTheWindowGoesAwayAllTheSameTheNextAdoptionLooksForANewOne)
{
    windows.addWindow();
    delegate->adoptDashboardWindow();
    windows.shown.clear();
    EXPECT_FALSE(delegate->windowShouldClose());
    const auto second = windows.addWindow();
    showDashboardWindow(windows, delegate.get());
    EXPECT_EQ(second->calls, broughtForward);
}

TEST_F(WindowLifecycle, WithoutADelegateEveryWindowThatCanBeActiveComesForward)
{
    const auto first = windows.addWindow();
    const auto tooltip = windows.addWindow();
    tooltip->canBecomeKey = false;
    const auto second = windows.addWindow();
    showDashboardWindow(windows, nullptr);
    EXPECT_EQ(first->calls, broughtForward);
    EXPECT_TRUE(tooltip->calls.empty());
    EXPECT_EQ(second->calls, broughtForward);
}

}  // namespace

}  // namespace larkspan::core
