#include "adapters/TerminationSignals.h"

#include <gtest/gtest.h>

#include <csignal>

#include "peers/EventLoop.h"

namespace larkspan::adapters {
namespace {

using peers::turnFor;
using peers::turnUntil;
using namespace std::chrono_literals;

class EachTerminationSignal : public testing::TestWithParam<int> {};

TEST_P(EachTerminationSignal, IsARequestOnTheMainThread)
{
    TerminationSignals termination;
    int requests = 0;
    QObject::connect(&termination, &TerminationSignals::requested, [&] { ++requests; });

    ASSERT_EQ(std::raise(GetParam()), 0);

    EXPECT_EQ(requests, 0) << "the handler itself must do nothing but wake the loop";
    EXPECT_TRUE(turnUntil([&] { return requests == 1; }));
    turnFor(20ms);
    EXPECT_EQ(requests, 1);
}

TEST_P(EachTerminationSignal, EndsAProcessThatDoesNotReactWhenItComesAgain)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto ignoreTheFirst = [] {
        const TerminationSignals termination;
        std::raise(GetParam());
        std::raise(GetParam());
    };
    EXPECT_EXIT(ignoreTheFirst(), testing::KilledBySignal(GetParam()), "");
}

INSTANTIATE_TEST_SUITE_P(TerminationSignals, EachTerminationSignal, testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST(TerminationSignals, AHangupIgnoredAtTheStartStaysIgnored)
{
    std::signal(SIGHUP, SIG_IGN);
    {
        TerminationSignals termination;
        int requests = 0;
        QObject::connect(&termination, &TerminationSignals::requested, [&] { ++requests; });

        std::raise(SIGHUP);
        turnFor(20ms);

        EXPECT_EQ(requests, 0);
    }
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}

}  // namespace
}  // namespace larkspan::adapters
