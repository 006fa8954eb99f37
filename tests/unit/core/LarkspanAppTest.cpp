#include "core/LarkspanApp.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "api/KeychainHelper.h"
#include "fakes/PolledAccount.h"

namespace larkspan::core {

namespace {

using namespace std::chrono_literals;

class App : public testing::Test, public fakes::PolledAccount {
protected:
    LarkspanApp app{ports()};
};

TEST_F(App, MadeButNotYetRunningHasAskedForNotificationsWatchesTheNetworkAndHasNoTimers)
{
    EXPECT_EQ(notifications.authorizationRequests, 2) << "one more than the fixture's own";
    EXPECT_TRUE(timers.periods().empty());
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(App, StartedRunsTheFirstCycleAtOnceAndTheNextOneAFullIntervalLater)
{
    transport.script(pagesURL, 500, "");
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
    timers.advance(59'999ms);
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
    timers.advance(1ms);
    run();
    EXPECT_EQ(transport.requests.size(), 2u);
}

TEST_F(App, StartsTheItemThenThePollThenTheFirstCycle)
{
    while (statusItem.rebuilds == 0) ASSERT_TRUE(main.runOne());
    EXPECT_EQ(timers.periods(), (std::vector<std::chrono::milliseconds>{10s, 60s})) << "the item's, then the poll's";
    EXPECT_FALSE(*app.appState()->isLoading) << "the cycle is a task of its own";
    run();
    EXPECT_TRUE(*app.appState()->isLoading);
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(App, StartingWithoutAKeyRunsOneFailingCycleAtOnce)
{
    api::KeychainHelper::deleteAPIKey(credentials);
    run();
    ASSERT_TRUE(*app.appState()->refreshError);
    EXPECT_EQ(support::localizedDescription(*app.appState()->refreshError), "API key is missing.");
}

TEST_F(App, ShowDashboardWindowBeforeTheWindowExistsActivatesTheApplicationAndDoesNothingElse)
{
    app.showDashboardWindow();
    EXPECT_EQ(windows.activations, 1);
}

TEST_F(App, ShowDashboardWindowBringsTheMinimisedWindowBack)
{
    const auto window = windows.addWindow();
    window->visible = false;
    app.showDashboardWindow();
    EXPECT_EQ(windows.activations, 1);
    EXPECT_EQ(window->calls, (std::vector<std::string>{"deminiaturize", "makeKeyAndOrderFront"}));
}

TEST_F(App, QuittingAsksTheDesktopToTerminateAndSavesNothing)
{
    app.quitApp();
    EXPECT_EQ(windows.terminations, 1);
    EXPECT_TRUE(transport.requests.empty());
}

class TypedText final : public QuitGuard {
public:
    bool asksBeforeQuitting(std::function<void()>) override { return true; }
};

TEST_F(App, ToldToEndByTheSessionOrASignalAsksNobody)
{
    const auto text = std::make_shared<TypedText>();
    app.appState()->guardQuitting(text);
    app.quitApp();
    EXPECT_EQ(windows.terminations, 0);
    app.terminate();
    EXPECT_EQ(windows.terminations, 1);
}

TEST_F(App, TheAboutBoxIsDownAtFirstAndItsRaisingIsAnnounced)
{
    EXPECT_FALSE(*app.showingAbout);
    int notices = 0;
    const auto subscription = app.objectWillChange([&notices] { ++notices; });
    app.showingAbout = true;
    EXPECT_EQ(notices, 1);
}

}  // namespace

}  // namespace larkspan::core
