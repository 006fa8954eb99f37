#include "bridge/workspace/DashboardBridge.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "fakes/PolledAccount.h"

namespace larkspan::bridge {

namespace {

using namespace std::chrono_literals;

class DashboardForScreens : public testing::Test, public fakes::PolledAccount {
protected:
    api::APIKeyStore keys{client, credentials};
    fakes::FakeLocaleText locale;
    fakes::FakeLinkOpener links;
    std::shared_ptr<workspace::DashboardView> dashboard = std::make_shared<workspace::DashboardView>(
        workspace::DashboardView::Ports{main, timers, clock, credentials, keys, state, locale, links, api});
    ScreenUpdates updatesOfWindow{main};
};

TEST_F(DashboardForScreens, AllChangesOfATurnAreOneNoticeThatComesAfterThem)
{
    DashboardBridge bridge(dashboard, updatesOfWindow);
    const QSignalSpy changes(&bridge, &ScreenBridge::changed);
    state->isLoading = true;
    state->refreshError = nullptr;
    state->isLoading = false;
    state->lastRefresh = clock.time;
    EXPECT_TRUE(changes.empty());
    main.run();
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(bridge.status().text, QStringLiteral("Updated just now"));
}

TEST_F(DashboardForScreens, WhileNobodySeesItNothingIsReadAndThenTheLatestStateAtOnce)
{
    const DashboardBridge bridge(dashboard, updatesOfWindow);
    const QSignalSpy changes(&bridge, &ScreenBridge::changed);
    updatesOfWindow.hold();
    state->isReachable = false;
    run();
    state->isLoading = true;
    run();
    EXPECT_EQ(changes.count(), 0);

    updatesOfWindow.release();
    run();
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(bridge.status().text, QStringLiteral("Refreshing..."));
}

TEST_F(DashboardForScreens, TheScreenMayGoWhileItsRequestRuns)
{
    auto bridge = std::make_unique<DashboardBridge>(dashboard, updatesOfWindow);
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
    DashboardBridge bridge(dashboard, updatesOfWindow);
    EXPECT_EQ(bridge.refreshIntervalLabels(),
        QStringList({"Every 30 seconds", "Every 1 minute", "Every 2 minutes", "Every 5 minutes"}));
    bridge.chooseRefreshInterval(2);
    EXPECT_EQ(state->refreshInterval(), 120s);
}

}  // namespace

}  // namespace larkspan::bridge
