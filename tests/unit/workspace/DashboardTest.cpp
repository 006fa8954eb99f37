#include "workspace/Dashboard.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "api/KeychainHelper.h"
#include "fakes/Account.h"

namespace larkspan::workspace {

namespace {

using namespace std::chrono_literals;
using platform::HttpResponse;
using platform::URLError;
using presentation::Tone;
using Content = Dashboard::Content;

class DashboardScreen : public testing::Test, public fakes::Account {
protected:
    Dashboard dashboard{{timers, clock, credentials, state}};
};

TEST_F(DashboardScreen, BeforeTheFirstCycleIsEmpty)
{
    EXPECT_EQ(dashboard.content(), Content::empty);
    EXPECT_EQ(dashboard.placeholder(),
        (Dashboard::Placeholder{.symbol = "doc.text.magnifyingglass",
            .title = "No Status Pages",
            .text = "Add your Kestrune API key in Settings to get started."}));
    EXPECT_EQ(dashboard.statusText(), Dashboard::StatusText{});
}

TEST_F(DashboardScreen, DuringTheFirstCycleLoads)
{
    state->refreshNow();
    run();
    EXPECT_EQ(dashboard.content(), Content::loading);
    EXPECT_EQ(dashboard.placeholder().text, "Loading Dashboard...");
    EXPECT_TRUE(dashboard.placeholder().showsProgress);
    EXPECT_EQ(dashboard.statusText(), (Dashboard::StatusText{.text = "Refreshing...", .showsProgress = true}));
    EXPECT_FALSE(dashboard.isRefreshEnabled());
}

TEST_F(DashboardScreen, AfterAFirstCycleWithoutAKeySaysThatTheKeyIsMissing)
{
    api::KeychainHelper::deleteAPIKey(credentials);
    refresh();
    EXPECT_EQ(dashboard.content(), Content::error);
    EXPECT_EQ(dashboard.placeholder(),
        (Dashboard::Placeholder{.symbol = "exclamationmark.triangle",
            .tone = Tone::orange,
            .title = "Couldn\u2019t Refresh",
            .text = "API key is missing.",
            .offersRetry = true}));
    EXPECT_TRUE(dashboard.isRefreshEnabled());
}

TEST_F(DashboardScreen, AnAccountWithoutPagesIsEmpty)
{
    servePages({}, {});
    refresh();
    EXPECT_EQ(dashboard.content(), Content::empty);
}

TEST_F(DashboardScreen, ListsThePagesInTheServicesOrderWithSymbolAndPill)
{
    servePages({"b", "a"}, {{"a", "major-outage"}, {"b", "operational"}});
    refresh();
    EXPECT_EQ(dashboard.content(), Content::list);
    EXPECT_EQ(dashboard.rows(),
        (std::vector<Dashboard::Row>{
            {.id = "b", .name = "b", .symbol = "checkmark.circle.fill", .tone = Tone::green, .label = "Operational"},
            {.id = "a", .name = "a", .symbol = "xmark.octagon.fill", .tone = Tone::red, .label = "Down"},
        }));
    EXPECT_FALSE(dashboard.showsRefreshFailure());
}

TEST_F(DashboardScreen, AFailedRefreshStandsBesideTheLastGoodData)
{
    servePages({"a"}, {{"a", "operational"}});
    refresh();
    transport.script(pagesURL, 500, "");
    refresh();
    EXPECT_EQ(dashboard.content(), Content::list);
    EXPECT_EQ(dashboard.rows().size(), 1u);
    EXPECT_TRUE(dashboard.showsRefreshFailure());
    EXPECT_EQ(dashboard.statusText(), (Dashboard::StatusText{.text = "Updated just now", .showsWarning = true}));
}

TEST_F(DashboardScreen, ARefreshWithPagesOnScreenStaysEnabledAndKeepsTheLastUpdatedLine)
{
    servePages({"a"}, {{"a", "operational"}});
    refresh();
    transport.forget(pagesURL);
    dashboard.refresh();
    run();
    ASSERT_EQ(transport.pending.size(), 1u);
    EXPECT_TRUE(dashboard.isRefreshEnabled());
    EXPECT_EQ(dashboard.statusText().text, "Updated just now");
}

TEST_F(DashboardScreen, ARefreshThatTheUserAsksForIsWorthAPromptAPollIsNot)
{
    state->refreshNow();
    run();
    EXPECT_EQ(credentials.promptsAllowed, 0);
    dashboard.refresh();
    EXPECT_EQ(credentials.promptsAllowed, 1);
}

TEST_F(DashboardScreen, TheUpdatedTextAgesWithTheTickOfTenSeconds)
{
    servePages({"a"}, {{"a", "operational"}});
    refresh();
    clock.time += 12s;
    EXPECT_EQ(dashboard.statusText().text, "Updated just now");
    timers.advance(10s);
    EXPECT_EQ(dashboard.statusText().text, "Updated 12s ago");
}

TEST_F(DashboardScreen, AnErrorThatWentInTheMeantimeLeavesNoErrorState)
{
    api::KeychainHelper::deleteAPIKey(credentials);
    refresh();
    state->clearAccountData();
    EXPECT_EQ(dashboard.content(), Content::empty);
}

TEST_F(DashboardScreen, ChoosingAnIntervalSetsIt)
{
    dashboard.chooseRefreshInterval(300s);
    EXPECT_EQ(state->refreshInterval(), 300s);
}

TEST_F(DashboardScreen, IsObservedTogetherWithTheAccount)
{
    int notices = 0;
    const auto subscriptions = dashboard.observe([&notices] { ++notices; });
    timers.advance(10s);
    EXPECT_EQ(notices, 1);
    state->clearAccountData();
    EXPECT_GT(notices, 1);
}

struct IntervalRow {
    std::chrono::seconds interval;
    std::string label;
};

class IntervalLabel : public testing::TestWithParam<IntervalRow> {};

TEST_P(IntervalLabel, ReadsAsAPersonSaysIt)
{
    EXPECT_EQ(refreshIntervalLabel(GetParam().interval), GetParam().label);
}

INSTANTIATE_TEST_SUITE_P(EachChoiceAndBoundary, IntervalLabel,
    testing::Values(IntervalRow{30s, "Every 30 seconds"}, IntervalRow{60s, "Every 1 minute"},
        IntervalRow{120s, "Every 2 minutes"}, IntervalRow{300s, "Every 5 minutes"},
        IntervalRow{59s, "Every 59 seconds"}, IntervalRow{119s, "Every 1 minute"}));

TEST(RefreshIntervals, AreTheFourOffered)
{
    EXPECT_EQ(Dashboard::refreshIntervals, (std::array<std::chrono::seconds, 4>{30s, 60s, 120s, 300s}));
}

}  // namespace

}  // namespace larkspan::workspace
