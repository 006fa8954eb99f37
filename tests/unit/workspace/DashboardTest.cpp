#include "workspace/DashboardView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "api/KeychainHelper.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "fakes/PolledAccount.h"
#include "workspace/SettingsView.h"
#include "workspace/StatusPageDetailView.h"
#include "workspace/StatusPageRow.h"

namespace larkspan::workspace {

namespace {

using namespace std::chrono_literals;
using presentation::Content;
using presentation::Marker;
using presentation::Placeholder;
using presentation::Tone;

class DashboardScreen : public testing::Test, public fakes::PolledAccount {
protected:
    api::APIKeyStore keys{client, credentials};
    fakes::FakeLocaleText locale;
    fakes::FakeLinkOpener links;
    DashboardView dashboard{{main, timers, clock, credentials, keys, state, locale, links, api}};
};

TEST_F(DashboardScreen, BeforeTheFirstCycleIsEmpty)
{
    EXPECT_EQ(dashboard.content(), Content::empty);
    EXPECT_EQ(dashboard.placeholder(),
        (Placeholder{.symbol = "doc.text.magnifyingglass",
            .title = "No Status Pages",
            .text = "Add your Kestrune API key in Settings to get started.",
            .offersSettings = true}));
    EXPECT_EQ(dashboard.status(), Marker{});
}

TEST_F(DashboardScreen, DuringTheFirstCycleLoads)
{
    state->refreshNow();
    run();
    EXPECT_EQ(dashboard.content(), Content::loading);
    EXPECT_EQ(dashboard.placeholder().text, "Loading Dashboard...");
    EXPECT_TRUE(dashboard.placeholder().showsProgress);
    EXPECT_EQ(dashboard.status(), (Marker{.text = "Refreshing...", .showsProgress = true}));
    EXPECT_FALSE(dashboard.isRefreshEnabled());
}

TEST_F(DashboardScreen, AfterAFirstCycleWithoutAKeySaysThatTheKeyIsMissing)
{
    api::KeychainHelper::deleteAPIKey(credentials);
    refresh();
    EXPECT_EQ(dashboard.content(), Content::failure);
    EXPECT_EQ(dashboard.placeholder(),
        (Placeholder{.symbol = "exclamationmark.triangle",
            .tone = Tone::orange,
            .title = "Couldn\u2019t Refresh",
            .text = "API key is missing.",
            .offersSettings = true,
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
    EXPECT_EQ(dashboard.content(), Content::records);
    EXPECT_EQ(dashboard.rows(),
        (std::vector<StatusPageRow>{
            {.id = "b",
                .title = "b",
                .symbol = "checkmark.circle.fill",
                .tone = Tone::green,
                .status = {.text = "Operational", .tone = Tone::green}},
            {.id = "a",
                .title = "a",
                .symbol = "xmark.octagon.fill",
                .tone = Tone::red,
                .status = {.text = "Down", .tone = Tone::red}},
        }));
    EXPECT_FALSE(dashboard.showsRefreshFailure());
}

TEST_F(DashboardScreen, AFailedRefreshStandsBesideTheLastGoodData)
{
    servePages({"a"}, {{"a", "operational"}});
    refresh();
    transport.script(pagesURL, 500, "");
    refresh();
    EXPECT_EQ(dashboard.content(), Content::records);
    EXPECT_EQ(dashboard.rows().size(), 1u);
    EXPECT_TRUE(dashboard.showsRefreshFailure());
    EXPECT_EQ(dashboard.status(),
        (Marker{.symbol = "exclamationmark.triangle.fill",
            .symbolTone = Tone::orange,
            .text = "Updated just now",
            .tone = Tone::primary}));
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
    EXPECT_EQ(dashboard.status().text, "Updated just now");
}

TEST_F(DashboardScreen, ARefreshThatTheUserAsksForIsWorthAPromptAPollIsNot)
{
    state->startPollTimer();
    timers.advance(60s);
    run();
    ASSERT_EQ(transport.requests.size(), 1u);
    EXPECT_EQ(credentials.promptsAllowed, 0);
    dashboard.refresh();
    EXPECT_EQ(credentials.promptsAllowed, 1);
}

TEST_F(DashboardScreen, TheUpdatedTextAgesWithTheTickOfTenSeconds)
{
    servePages({"a"}, {{"a", "operational"}});
    refresh();
    clock.time += 12s;
    EXPECT_EQ(dashboard.status().text, "Updated just now");
    timers.advance(10s);
    EXPECT_EQ(dashboard.status().text, "Updated 12s ago");
}

TEST_F(DashboardScreen, AnErrorThatWentInTheMeantimeLeavesNoErrorState)
{
    api::KeychainHelper::deleteAPIKey(credentials);
    refresh();
    state->clearAccountData();
    EXPECT_EQ(dashboard.content(), Content::empty);
}

TEST_F(DashboardScreen, TheListIsHeadedStatusPages)
{
    EXPECT_EQ(DashboardView::listHeading, "Status Pages");
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

TEST_F(DashboardScreen, OpensTheSettingsSheetOnceWithALookIntoTheStore)
{
    dashboard.openSettings();
    const auto sheet = dashboard.settings();
    dashboard.openSettings();
    run();
    EXPECT_TRUE(dashboard.showingSettings.isOpen());
    EXPECT_EQ(dashboard.settings(), sheet);
    EXPECT_TRUE(*sheet->hasExistingKey);
    EXPECT_EQ(credentials.promptsAllowed, 1) << "the user wants to see the key, which is worth a prompt";
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(DashboardScreen, ClosingTheSettingsSheetStartsACycle)
{
    dashboard.openSettings();
    run();
    dashboard.closeSettings();
    run();
    EXPECT_FALSE(dashboard.showingSettings.isOpen());
    EXPECT_EQ(dashboard.settings(), nullptr);
    EXPECT_EQ(transport.requests.size(), 1u);

    dashboard.closeSettings();
    run();
    EXPECT_EQ(transport.requests.size(), 1u) << "it was closed already";
}

TEST_F(DashboardScreen, ASheetOpenedAgainStartsAnew)
{
    dashboard.openSettings();
    dashboard.settings()->edit("half a key");
    dashboard.closeSettings();
    dashboard.openSettings();
    EXPECT_EQ(*dashboard.settings()->apiKey, "");
}

TEST_F(DashboardScreen, DeletingTheKeyClearsTheAccountAndShowsTheEmptyStateUntilTheNextCycleHasFailed)
{
    servePages({"a"}, {{"a", "operational"}});
    refresh();
    dashboard.openSettings();
    run();
    dashboard.settings()->deleteKey();
    run();
    EXPECT_EQ(dashboard.content(), Content::empty);
    dashboard.closeSettings();
    run();
    EXPECT_EQ(dashboard.content(), Content::failure);
    EXPECT_EQ(dashboard.placeholder().text, "API key is missing.");
}

TEST_F(DashboardScreen, AFirstRunGoesFromLoadingByTheErrorAndTheSettingsToTheList)
{
    api::KeychainHelper::deleteAPIKey(credentials);
    servePages({"a"}, {{"a", "operational"}});
    refresh();
    EXPECT_EQ(dashboard.placeholder().text, "API key is missing.");

    dashboard.openSettings();
    run();
    dashboard.settings()->edit("k-456\n");
    dashboard.settings()->saveAndVerify();
    run();
    EXPECT_EQ(dashboard.content(), Content::failure) << "the sheet itself refreshes nothing";
    dashboard.closeSettings();
    run();
    EXPECT_EQ(dashboard.content(), Content::records);
}

TEST_F(DashboardScreen, TheMenusWishForAPageSelectsThatPage)
{
    servePages({"a", "b"}, {});
    refresh();
    state->openStatusPage("b");
    EXPECT_EQ(*dashboard.selectedPageId, "b");
    EXPECT_EQ(dashboard.selectedRow(), 1);
}

TEST_F(DashboardScreen, AWishForAPageThatIsNoLongerInTheListChangesTheSelectionAndOpensNothing)
{
    servePages({"a"}, {});
    refresh();
    state->openStatusPage("gone");
    EXPECT_EQ(*dashboard.selectedPageId, "gone");
    EXPECT_EQ(dashboard.selectedRow(), std::nullopt);
}

TEST_F(DashboardScreen, AWishForAnIncidentIsNotHeard)
{
    state->openIncident("i");
    EXPECT_EQ(*dashboard.selectedPageId, std::nullopt);
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
    EXPECT_EQ(DashboardView::refreshIntervals, (std::array<std::chrono::seconds, 4>{30s, 60s, 120s, 300s}));
}

}  // namespace

}  // namespace larkspan::workspace
