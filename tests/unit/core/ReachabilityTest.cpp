#include "core/AppStateManager.h"

#include <gtest/gtest.h>

#include "fakes/PolledAccount.h"

namespace larkspan::core {

namespace {

using namespace std::chrono_literals;
using fakes::PolledAccount;
using platform::URLError;

class Reachability : public testing::Test, public PolledAccount {};

TEST_F(Reachability, FollowsTheNetworkPathOnTheMainThread)
{
    network.update(false);
    EXPECT_TRUE(*state->isReachable) << "the change hops to the main thread first";
    run();
    EXPECT_FALSE(*state->isReachable);
    network.update(true);
    run();
    EXPECT_TRUE(*state->isReachable);
}

TEST_F(Reachability, RegainedConnectivityAloneDoesNotRefreshTheNextTimerFiringDoes)
{
    state->startPollTimer();
    network.update(false);
    network.update(true);
    run();
    EXPECT_TRUE(transport.requests.empty());
    timers.advance(60s);
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(Reachability, ACycleRunsWhileOffline)
{
    network.update(false);
    run();
    transport.script(pagesURL, URLError::Code::notConnectedToInternet);
    refresh();
    EXPECT_EQ(error(), "The computer is not connected to the network.");
}

TEST_F(Reachability, AnUpdateAfterTheStateIsGoneDoesNothing)
{
    state.reset();
    network.update(false);
    run();
    SUCCEED();
}

}  // namespace

}  // namespace larkspan::core
