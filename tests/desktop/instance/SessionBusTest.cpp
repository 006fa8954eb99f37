#include "adapters/SessionBus.h"

#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <vector>

#include "peers/EventLoop.h"
#include "peers/PrivateBus.h"

namespace larkspan::adapters {
namespace {

using peers::turnFor;
using peers::turnUntil;
using namespace std::chrono_literals;

class SessionBusTest : public testing::Test {
protected:
    bool isConnected() const { return session.connection().isConnected(); }

    /// Something else in the place of the bus that has ended.
    void listenInItsPlace()
    {
        const auto path = bus.address().mid(bus.address().indexOf('=') + 1);
        QFile::remove(path);
        ASSERT_TRUE(server.listen(path));
    }

    peers::PrivateBus bus;
    const SessionBus session{bus.address(), {.first = 100ms, .longest = 400ms}};
    QLocalServer server;
};

TEST_F(SessionBusTest, ALostConnectionIsMadeAnewWheneverTheBusReturns)
{
    ASSERT_TRUE(isConnected());
    for (int round = 0; round < 3; ++round) {
        int changes = 0;
        QObject context;
        QObject::connect(&session, &SessionBus::changed, &context, [&] { ++changes; });

        bus.stop();
        ASSERT_TRUE(turnUntil([&] { return changes == 1; }));
        EXPECT_FALSE(isConnected());
        bus.start();
        ASSERT_TRUE(turnUntil([&] { return changes == 2; }));

        EXPECT_TRUE(isConnected());
        EXPECT_TRUE(session.connection().registerService("com.kestrune.larkspan"));
    }
}

TEST_F(SessionBusTest, WhatIsNoBusIsAskedWithGrowingPausesOfAtMostTheLongest)
{
    bus.stop();
    listenInItsPlace();
    std::vector<std::chrono::steady_clock::time_point> attempts;
    QObject::connect(&server, &QLocalServer::newConnection, [&] {
        attempts.push_back(std::chrono::steady_clock::now());
        server.nextPendingConnection()->abort();
    });

    ASSERT_TRUE(turnUntil([&] { return attempts.size() == 5; }));

    // Pauses of 200, 400 and again 400 ms, by timers that may be early by a twentieth, on a machine that may be busy.
    EXPECT_GE(attempts[1] - attempts[0], 190ms);
    EXPECT_GE(attempts[2] - attempts[1], 380ms);
    EXPECT_LT(attempts[4] - attempts[3], 1400ms);
}

TEST_F(SessionBusTest, WhatDoesNotAnswerInItsPlaceHoldsUpNothing)
{
    bus.stop();
    listenInItsPlace();
    ASSERT_TRUE(turnUntil([&] { return server.hasPendingConnections(); }));

    auto longest = std::chrono::steady_clock::duration::zero();
    for (int turn = 0; turn < 20; ++turn) {
        const auto begin = std::chrono::steady_clock::now();
        turnFor(10ms);
        longest = std::max(longest, std::chrono::steady_clock::now() - begin);
    }

    EXPECT_LT(longest, 100ms);
    server.nextPendingConnection()->abort();
}

TEST_F(SessionBusTest, WhereThereWasNoneNoneIsLookedFor)
{
    bus.stop();
    const SessionBus lonely(bus.address(), {.first = 10ms, .longest = 10ms});
    int changes = 0;
    QObject::connect(&lonely, &SessionBus::changed, [&] { ++changes; });

    bus.start();
    turnFor(200ms);

    EXPECT_EQ(changes, 0);
    EXPECT_FALSE(lonely.connection().isConnected());
}

}  // namespace
}  // namespace larkspan::adapters
