#include "bridge/DashboardBridge.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

#include "fakes/Account.h"

namespace larkspan::bridge {

namespace {

using namespace std::chrono_literals;

class DashboardForScreens : public testing::Test, public fakes::Account {
protected:
    api::APIKeyStore keys{client, credentials};
    std::shared_ptr<workspace::Dashboard> dashboard = std::make_shared<workspace::Dashboard>(
        workspace::Dashboard::Ports{main, timers, clock, credentials, keys, state});
};

TEST_F(DashboardForScreens, AllChangesOfATurnAreOneNoticeThatComesAfterThem)
{
    DashboardBridge bridge(dashboard, main);
    const QSignalSpy changes(&bridge, &DashboardBridge::changed);
    state->isLoading = true;
    state->refreshError = nullptr;
    state->isLoading = false;
    state->lastRefresh = clock.time;
    EXPECT_TRUE(changes.empty());
    main.run();
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(bridge.statusText(), QStringLiteral("Updated just now"));
}

TEST_F(DashboardForScreens, EachTurnWithChangesHasANoticeOfItsOwn)
{
    DashboardBridge bridge(dashboard, main);
    const QSignalSpy changes(&bridge, &DashboardBridge::changed);
    timers.advance(10s);
    main.run();
    timers.advance(10s);
    main.run();
    EXPECT_EQ(changes.size(), 2);
}

TEST_F(DashboardForScreens, WhileNobodySeesItChangesAreKeptAndToldOnceWhenSomebodyDoesAgain)
{
    DashboardBridge bridge(dashboard, main);
    const QSignalSpy changes(&bridge, &DashboardBridge::changed);
    bridge.setVisible(false);
    state->isReachable = false;
    run();
    state->isLoading = true;
    run();
    EXPECT_EQ(changes.count(), 0);

    bridge.setVisible(true);
    run();
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(bridge.statusText(), QStringLiteral("Refreshing..."));
    state->isLoading = false;
    run();
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(DashboardForScreens, AChangeThatIsOnItsWayWhenNobodySeesItAnyMoreIsKeptToo)
{
    DashboardBridge bridge(dashboard, main);
    const QSignalSpy changes(&bridge, &DashboardBridge::changed);
    state->isLoading = true;
    bridge.setVisible(false);
    run();
    EXPECT_EQ(changes.count(), 0);
    bridge.setVisible(true);
    run();
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(DashboardForScreens, AScreenThatWentBeforeItsNoticeIsNotTold)
{
    {
        const DashboardBridge bridge(dashboard, main);
        state->isLoading = true;
    }
    main.run();
    SUCCEED();
}

TEST_F(DashboardForScreens, TheScreenMayGoWhileItsRequestRuns)
{
    auto bridge = std::make_unique<DashboardBridge>(dashboard, main);
    bridge->refresh();
    run();
    ASSERT_EQ(transport.pending.size(), 1u);
    bridge.reset();
    dashboard.reset();
    transport.answer(platform::HttpResponse{.status = 500, .body = ""});
    run();
    EXPECT_EQ(error(), "Server returned HTTP status code 500.");
}

TEST_F(DashboardForScreens, OffersTheFourIntervalsAndSetsTheChosenOne)
{
    DashboardBridge bridge(dashboard, main);
    EXPECT_EQ(bridge.refreshIntervalLabels(),
        QStringList({"Every 30 seconds", "Every 1 minute", "Every 2 minutes", "Every 5 minutes"}));
    bridge.chooseRefreshInterval(2);
    EXPECT_EQ(state->refreshInterval(), 120s);
}

}  // namespace

}  // namespace larkspan::bridge
