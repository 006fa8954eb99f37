#include "adapters/QtTimers.h"

#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <limits>

#include "peers/EventLoop.h"

namespace larkspan::adapters {
namespace {

using peers::turnFor;
using peers::turnUntil;
using namespace std::chrono_literals;

TEST(QtTimers, FiresFirstAfterOnePeriodAndThenOnceEachPeriod)
{
    QtTimers timers;
    QElapsedTimer elapsed;
    std::vector<qint64> firings;
    elapsed.start();

    const auto timer = timers.every(100ms, [&] { firings.push_back(elapsed.elapsed()); });

    ASSERT_TRUE(turnUntil([&] { return firings.size() == 3; }));
    // Only early firings are the timer's fault; late ones may be due to a busy machine.
    EXPECT_GE(firings[0], 99);
    EXPECT_GE(firings[1], 199);
    EXPECT_GE(firings[2], 299);
}

TEST(QtTimers, ADestroyedTimerFiresNoMore)
{
    QtTimers timers;
    int firings = 0;
    auto timer = timers.every(10ms, [&] { ++firings; });
    ASSERT_TRUE(turnUntil([&] { return firings > 0; }));

    timer.reset();
    const int before = firings;
    turnFor(60ms);

    EXPECT_EQ(firings, before);
}

TEST(QtTimers, ATimerMayBeDestroyedInItsOwnFiring)
{
    QtTimers timers;
    std::unique_ptr<platform::Timer> timer;
    int firings = 0;
    auto witness = std::make_shared<int>(7);

    timer = timers.every(5ms, [&firings, &timer, witness] {
        timer.reset();
        firings += *witness;
    });

    ASSERT_TRUE(turnUntil([&] { return firings > 0; }));
    turnFor(30ms);
    EXPECT_EQ(firings, 7);
    EXPECT_EQ(witness.use_count(), 1);
}

TEST(QtTimers, FiringsMissedWhileTheLoopWasBusyComeOnce)
{
    QtTimers timers;
    int firings = 0;
    const auto timer = timers.every(200ms, [&] { ++firings; });

    QThread::msleep(700);
    turnFor(50ms);

    EXPECT_EQ(firings, 1);
}

TEST(QtTimers, APeriodBeyondWhatQtCountsDoesNotWrapAround)
{
    QtTimers timers;
    int firings = 0;
    const auto timer
        = timers.every(std::chrono::milliseconds{std::numeric_limits<int>::max()} * 2 + 5ms, [&] { ++firings; });

    turnFor(50ms);

    EXPECT_EQ(firings, 0);
}

}  // namespace
}  // namespace larkspan::adapters
