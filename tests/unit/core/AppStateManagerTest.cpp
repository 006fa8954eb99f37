#include "core/AppStateManager.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "api/KeychainHelper.h"
#include "fakes/PolledAccount.h"

namespace larkspan::core {

namespace {

using namespace std::chrono_literals;
using fakes::PolledAccount;
using model::StatusPageStatus;
using platform::HttpResponse;
using platform::URLError;

class Refresh : public testing::Test, public PolledAccount {};

TEST_F(Refresh, StartsFromTheInitialValues)
{
    EXPECT_TRUE(state->statusPages->empty());
    EXPECT_EQ(*state->overallStatus, OverallStatus::unknown);
    EXPECT_FALSE(*state->isLoading);
    EXPECT_EQ(*state->lastRefresh, std::nullopt);
    EXPECT_FALSE(*state->refreshError);
    EXPECT_TRUE(*state->isReachable);
    EXPECT_FALSE(*state->hasCompletedInitialFetch);
    EXPECT_EQ(state->refreshInterval(), 60s);
}

TEST_F(Refresh, ConstructionAsksForAuthorizationOnceWatchesTheNetworkAndFetchesNothing)
{
    run();
    EXPECT_EQ(notifications.authorizationRequests, 1);
    EXPECT_TRUE(network.update);
    EXPECT_TRUE(timers.periods().empty());
    EXPECT_TRUE(transport.requests.empty());
}

/// Notifications and the network, which record the order of calls.
class Outside final : public platform::NotificationCenter, public platform::NetworkPathMonitor {
public:
    void requestAuthorization() override { order.emplace_back("authorization"); }
    void add(const platform::NotificationRequest&) override {}
    void start(std::function<void(bool)>) override { order.emplace_back("network"); }

    std::vector<std::string> order;
};

TEST_F(Refresh, ConstructionAsksForAuthorizationBeforeItWatchesTheNetwork)
{
    Outside outside;
    AppStateManager::make({main, timers, clock, outside, outside, statusItem, updates, windows, credentials, api});
    EXPECT_EQ(outside.order, (std::vector<std::string>{"authorization", "network"}));
}

TEST_F(Refresh, PublishesThePagesInTheServicesOrderWithTheOverviewMergedIn)
{
    servePages({"b", "a"}, {{"a", "degraded"}, {"b", "operational"}});
    refresh();
    ASSERT_EQ(state->statusPages->size(), 2u);
    EXPECT_EQ(state->statusPages->at(0).id, "b");
    EXPECT_EQ(state->statusPages->at(0).status, StatusPageStatus::operational);
    EXPECT_EQ(state->statusPages->at(1).status, StatusPageStatus::degraded);
    EXPECT_EQ(*state->overallStatus, OverallStatus::degraded);
    EXPECT_EQ(*state->lastRefresh, clock.time);
    EXPECT_TRUE(*state->hasCompletedInitialFetch);
    EXPECT_FALSE(*state->isLoading);
    EXPECT_FALSE(*state->refreshError);
}

TEST_F(Refresh, DuringARunningCycleSendsNothingAndChangesNothing)
{
    state->refreshNow();
    run();
    ASSERT_EQ(transport.requests.size(), 1u);

    int changes = 0;
    const auto subscription = state->objectWillChange([&changes] { ++changes; });
    state->refreshNow();
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(*state->isLoading);
}

TEST_F(Refresh, DroppedDuringARunningCycleIsNotMadeUpForAfterwards)
{
    state->refreshNow();
    run();
    state->refreshNow();
    run();
    transport.answer(HttpResponse{.status = 500, .body = ""});
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
    EXPECT_TRUE(transport.pending.empty());
}

TEST_F(Refresh, AnAccountWithoutAnythingCompletesACycle)
{
    servePages({}, {});
    refresh();
    EXPECT_EQ(*state->lastRefresh, clock.time);
    EXPECT_TRUE(*state->hasCompletedInitialFetch);
    EXPECT_EQ(*state->overallStatus, OverallStatus::unknown);
}

TEST_F(Refresh, AStatusListThatLacksSomePageLeavesThatPageAsItWasFetched)
{
    transport.script(pagesURL, 200, R"([{"id": "a", "name": "A", "status": "degraded"}])");
    transport.script(overviewURL, 200, PolledAccount::overview({}));
    refresh();
    EXPECT_EQ(state->statusPages->at(0).status, StatusPageStatus::degraded);
}

TEST_F(Refresh, AnEntryForAPageThatIsNotInTheListIsIgnored)
{
    servePages({"a"}, {{"a", "operational"}, {"gone", "major-outage"}});
    refresh();
    ASSERT_EQ(state->statusPages->size(), 1u);
    EXPECT_EQ(*state->overallStatus, OverallStatus::operational);
}

struct CodeRow {
    std::string code;
    StatusPageStatus status;
};

class OverviewCode : public Refresh, public testing::WithParamInterface<CodeRow> {};

TEST_P(OverviewCode, GivesThePageItsStatus)
{
    servePages({"a"}, {{"a", GetParam().code}});
    refresh();
    EXPECT_EQ(state->statusPages->at(0).status, GetParam().status);
}

INSTANTIATE_TEST_SUITE_P(EachCode, OverviewCode,
    testing::Values(CodeRow{"operational", StatusPageStatus::operational},
        CodeRow{"degraded", StatusPageStatus::degraded}, CodeRow{"major-outage", StatusPageStatus::down},
        CodeRow{"maintenance", StatusPageStatus::maintenance}, CodeRow{"anything else", StatusPageStatus::unknown},
        CodeRow{"Operational", StatusPageStatus::unknown}, CodeRow{"down", StatusPageStatus::unknown},
        CodeRow{"", StatusPageStatus::unknown}));

TEST_F(Refresh, AFailedOverviewIsNoFailureAndThePagesKeepWhatTheyCameWith)
{
    transport.script(pagesURL, 200, R"([{"id": "a", "name": "A", "status": "maintenance"}])");
    transport.script(overviewURL, 500, "");
    refresh();
    EXPECT_FALSE(*state->refreshError);
    EXPECT_EQ(state->statusPages->at(0).status, StatusPageStatus::maintenance);
    EXPECT_EQ(*state->lastRefresh, clock.time);
}

TEST_F(Refresh, AnUndecodableOverviewIsNoFailureEither)
{
    transport.script(pagesURL, 200, R"([{"id": "a", "name": "A", "status": "operational"}])");
    transport.script(overviewURL, 200, "<html>");
    refresh();
    EXPECT_FALSE(*state->refreshError);
    EXPECT_EQ(*state->overallStatus, OverallStatus::operational);
}

using RefreshDeathTest = Refresh;

TEST_F(RefreshDeathTest, TheSameIdTwiceInTheOverviewEndsTheProcess)
{
    servePages({"a"}, {{"a", "operational"}, {"a", "degraded"}});
    EXPECT_DEATH(refresh(), "fatal: Duplicate values for key: 'a'");
}

TEST_F(RefreshDeathTest, TheMessageOfAnIdThatOccursTwiceHasTheWholeId)
{
    const std::string id(300, 'x');
    servePages({id}, {{id, "operational"}, {id, "degraded"}});
    EXPECT_DEATH(refresh(), "Duplicate values for key: '" + id + "'");
}

TEST_F(Refresh, AsksForTheOverviewLast)
{
    state->refreshNow();
    run();
    ASSERT_EQ(transport.requests.size(), 1u);
    EXPECT_EQ(transport.requests.back().url, pagesURL);
    transport.answer(HttpResponse{.status = 200, .body = "[]"});
    run();
    ASSERT_EQ(transport.requests.size(), 4u);
    EXPECT_EQ(transport.requests.back().url, overviewURL);
}

TEST_F(Refresh, WithPagesHeldAFailingCycleLeavesThemInPlaceBesideItsError)
{
    servePages({"a"}, {{"a", "operational"}});
    refresh();
    const auto firstRefresh = *state->lastRefresh;
    clock.time += 1min;

    transport.script(pagesURL, 503, "");
    refresh();
    EXPECT_EQ(state->statusPages->size(), 1u);
    EXPECT_EQ(*state->lastRefresh, firstRefresh);
    EXPECT_EQ(error(), "Server returned HTTP status code 503.");
    EXPECT_EQ(*state->overallStatus, OverallStatus::stale);
    EXPECT_TRUE(*state->hasCompletedInitialFetch);
}

TEST_F(Refresh, AnErrorIsClearedWhenTheNextCycleBeginsEvenIfThatWillFailAgain)
{
    transport.script(pagesURL, 503, "");
    refresh();
    ASSERT_TRUE(*state->refreshError);

    std::vector<bool> errorBeforeEachChange;
    const auto subscription
        = state->objectWillChange([&] { errorBeforeEachChange.push_back(*state->refreshError != nullptr); });
    refresh();
    // isLoading, refreshError cleared; then refreshError set, isLoading, overallStatus.
    EXPECT_EQ(errorBeforeEachChange, (std::vector<bool>{true, true, false, true, true}));
    EXPECT_EQ(error(), "Server returned HTTP status code 503.");
}

TEST_F(Refresh, AnOutageThatIsHeldIsNotHiddenByAFailedRefresh)
{
    servePages({"a"}, {{"a", "major-outage"}});
    refresh();
    transport.script(pagesURL, URLError::Code::timedOut);
    refresh();
    EXPECT_EQ(*state->overallStatus, OverallStatus::down);
}

TEST_F(Refresh, WithoutAKeyEveryCycleFailsAndNothingIsSent)
{
    api::KeychainHelper::deleteAPIKey(credentials);
    refresh();
    EXPECT_EQ(error(), "API key is missing.");
    EXPECT_EQ(*state->overallStatus, OverallStatus::stale);
    EXPECT_TRUE(transport.requests.empty());
    EXPECT_FALSE(*state->hasCompletedInitialFetch);
}

TEST_F(Refresh, ATransportFailureIsKeptAsItWasThrown)
{
    transport.script(pagesURL, URLError::Code::cannotFindHost);
    refresh();
    try {
        std::rethrow_exception(*state->refreshError);
    } catch (const URLError& kept) {
        EXPECT_EQ(kept.code(), URLError::Code::cannotFindHost);
    }
}

TEST_F(Refresh, ShowsTheLoadingStateOnlyWhileThereIsNothingToShow)
{
    state->refreshNow();
    run();
    EXPECT_TRUE(*state->isLoading) << "the first cycle";
    transport.answer(HttpResponse{.status = 200, .body = R"([{"id": "a", "name": "A"}])"});
    run();
    EXPECT_TRUE(*state->isLoading) << "until the whole cycle has ended";
    transport.answer(HttpResponse{.status = 500, .body = ""});
    run();
    EXPECT_FALSE(*state->isLoading);

    state->refreshNow();
    run();
    EXPECT_FALSE(*state->isLoading) << "a later cycle with pages held";
}

TEST_F(Refresh, ALaterCycleOfAnAccountWithoutPagesLoadsAgain)
{
    servePages({}, {});
    refresh();
    transport.forget(pagesURL);
    state->refreshNow();
    run();
    EXPECT_TRUE(*state->isLoading);
    EXPECT_TRUE(*state->hasCompletedInitialFetch);
}

TEST_F(Refresh, PublishesInItsFixedOrder)
{
    servePages({"a"}, {{"a", "operational"}});
    std::vector<std::string> order;
    const auto subscription = state->objectWillChange([&] { order.push_back(snapshot()); });
    refresh();
    order.push_back(snapshot());
    EXPECT_EQ(order,
        (std::vector<std::string>{
            "pages 0, unknown, idle, never",
            "pages 0, unknown, loading, never",
            "pages 0, unknown, loading, never",
            "pages 1, unknown, loading, never",
            "pages 1, unknown, loading, never",
            "pages 1, unknown, loading, never",
            "pages 1, operational, loading, never",
            "pages 1, operational, loading, refreshed",
            "pages 1, operational, loading, refreshed, seeded",
            "pages 1, operational, idle, refreshed, seeded",
        }));
}

TEST_F(Refresh, ACycleKeepsTheStateAliveUntilItEnds)
{
    state->refreshNow();
    run();
    const std::weak_ptr<AppStateManager> weak = state;
    state.reset();
    EXPECT_FALSE(weak.expired());
    transport.answer(HttpResponse{.status = 500, .body = ""});
    run();
    EXPECT_TRUE(weak.expired());
}

TEST_F(Refresh, ACycleWhoseTransportGoesAwayIsUnwound)
{
    state->refreshNow();
    run();
    const std::weak_ptr<AppStateManager> weak = state;
    state.reset();
    transport.pending.clear();
    run();
    EXPECT_TRUE(weak.expired());
}

}  // namespace

}  // namespace larkspan::core
