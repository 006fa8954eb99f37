#include "core/AppStateManager.h"

#include <gtest/gtest.h>

#include <vector>

#include "fakes/PolledAccount.h"

namespace larkspan::core {

namespace {

using namespace std::chrono_literals;
using fakes::PolledAccount;

class Poll : public testing::Test, public PolledAccount {};

TEST_F(Poll, DoesNotFireAtOnceButOnePeriodLater)
{
    state->startPollTimer();
    run();
    EXPECT_TRUE(transport.requests.empty());
    timers.advance(59'999ms);
    run();
    EXPECT_TRUE(transport.requests.empty());
    timers.advance(1ms);
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(Poll, FiringDuringARunningCycleSendsNothingAndIsNotMadeUpFor)
{
    state->startPollTimer();
    refresh();
    ASSERT_EQ(transport.pending.size(), 1u);
    timers.advance(60s);
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
    transport.answer(platform::HttpResponse{.status = 500, .body = ""});
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
    timers.advance(60s);
    run();
    EXPECT_EQ(transport.requests.size(), 2u);
}

TEST_F(Poll, GoesToTheClientAndComesBackOnceForEachOfItsFourRequests)
{
    servePages({"p1"}, {{"p1", "operational"}});
    const auto before = main.posts();
    refresh();
    ASSERT_EQ(transport.requests.size(), 4u);
    EXPECT_EQ(client.posts(), 8) << "four operations and their answers";
    EXPECT_EQ(main.posts() - before, 10) << "four results, and start and end of the cycle and of two fetches at once";
}

TEST_F(Poll, IsTheOnlyRetryOfAFailedCycle)
{
    transport.script(pagesURL, 500, "");
    state->startPollTimer();
    refresh();
    EXPECT_EQ(transport.requests.size(), 1u);
    timers.advance(60s);
    run();
    EXPECT_EQ(transport.requests.size(), 2u);
}

TEST_F(Poll, ChoosingAnIntervalRestartsThePeriodFromThatMoment)
{
    state->startPollTimer();
    timers.advance(59s);
    state->setRefreshInterval(30s);
    timers.advance(29s);
    run();
    EXPECT_TRUE(transport.requests.empty());
    timers.advance(1s);
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
    EXPECT_EQ(timers.periods(), (std::vector<std::chrono::milliseconds>{30s}));
}

TEST_F(Poll, ChoosingAnIntervalBelow30Yields30)
{
    state->setRefreshInterval(5s);
    EXPECT_EQ(state->refreshInterval(), 30s);
    EXPECT_EQ(timers.periods(), (std::vector<std::chrono::milliseconds>{30s}));
}

TEST_F(Poll, AfterARestartTheIntervalIs60Again)
{
    state->setRefreshInterval(300s);
    EXPECT_EQ(remade()->refreshInterval(), 60s);
}

TEST_F(Poll, FiringAfterTheStateIsGoneDoesNothing)
{
    state->startPollTimer();
    auto keptTimers = std::move(timers);
    state.reset();
    EXPECT_TRUE(keptTimers.periods().empty());
}

}  // namespace

}  // namespace larkspan::core
