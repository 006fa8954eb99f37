#include "core/AppStateManager.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/PolledAccount.h"

namespace larkspan::core {

namespace {

using namespace std::chrono_literals;
using fakes::PolledAccount;
using platform::HttpResponse;

class ClearAccountData : public testing::Test, public PolledAccount {};

TEST_F(ClearAccountData, ForgetsTheAccountInItsFixedOrder)
{
    servePages({"a"}, {{"a", "operational"}});
    serveIncidents({incident("1", "a")});
    serveMaintenances({maintenance("2", "b")});
    refresh();
    std::vector<std::string> order;
    const auto subscription = state->objectWillChange([&] { order.push_back(snapshot()); });
    state->clearAccountData();
    order.push_back(snapshot());
    EXPECT_EQ(order,
        (std::vector<std::string>{
            "pages 1 incidents 1 maintenances 1, down, idle, refreshed, seeded",
            "pages 0 incidents 1 maintenances 1, down, idle, refreshed, seeded",
            "pages 0 maintenances 1, down, idle, refreshed, seeded",
            "pages 0, down, idle, refreshed, seeded",
            "pages 0, unknown, idle, refreshed, seeded",
            "pages 0, unknown, idle, never, seeded",
            "pages 0, unknown, idle, never, seeded",
            "pages 0, unknown, idle, never, seeded",
            "pages 0, unknown, idle, never",
        }));
}

TEST_F(ClearAccountData, LeavesTheTimerAndTheIntervalAlone)
{
    state->setRefreshInterval(120s);
    state->clearAccountData();
    EXPECT_EQ(state->refreshInterval(), 120s);
    EXPECT_EQ(timers.periods().size(), 1u);
}

TEST_F(ClearAccountData, DuringARunningCycleDoesNotStopItFromPublishing)
{
    state->refreshNow();
    run();
    state->clearAccountData();
    EXPECT_FALSE(*state->isLoading);
    transport.script(overviewURL, 200, PolledAccount::overview({}));
    transport.answer(HttpResponse{.status = 200, .body = R"([{"id": "a", "name": "A"}])"});
    run();
    EXPECT_EQ(state->statusPages->size(), 1u);
    EXPECT_TRUE(*state->hasCompletedInitialFetch);
}

TEST_F(ClearAccountData, DuringARunningCycleMakesThatOneSeedAndPostNothing)
{
    servePages({}, {});
    refresh();
    transport.forget(pagesURL);
    state->refreshNow();
    run();
    state->clearAccountData();
    serveIncidents({incident("1", "a")});
    transport.answer(HttpResponse{.status = 200, .body = "[]"});
    run();
    EXPECT_EQ(state->incidents->size(), 1u);
    EXPECT_TRUE(notifications.added.empty());

    servePages({}, {});
    serveIncidents({incident("1", "a"), incident("2", "b")});
    refresh();
    ASSERT_EQ(notifications.added.size(), 1u);
    EXPECT_EQ(notifications.added[0].identifier, "incident-2");
}

TEST_F(ClearAccountData, LeavesTheGuardOfARunningCycleAlone)
{
    state->refreshNow();
    run();
    state->clearAccountData();
    state->refreshNow();
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
}

}  // namespace

}  // namespace larkspan::core
