#include "support/Task.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "fakes/ManualExecutor.h"
#include "fakes/ThreadExecutor.h"

namespace larkspan::support {

namespace {

using fakes::ManualExecutor;
using fakes::ThreadExecutor;

Task<int> give(int value)
{
    co_return value;
}

Task<int> fail(std::string text)
{
    throw std::runtime_error(text);
    co_return 0;
}

Task<void> await(Task<int> task, int* into)
{
    *into = co_await std::move(task);
}

Task<void> awaitElsewhere(platform::Executor& elsewhere, Task<int> task, int* into)
{
    auto there = on(elsewhere, std::move(task));
    *into = co_await std::move(there);
}

Task<void> note(std::vector<std::string>* log, std::string text)
{
    log->push_back(text);
    co_return;
}

TEST(Task, DoesNothingUntilItsExecutorTurns)
{
    ManualExecutor executor;
    int value = 0;
    start(executor, await(give(7), &value));
    EXPECT_EQ(value, 0);
    executor.run();
    EXPECT_EQ(value, 7);
}

TEST(Task, StartedTasksBeginInTheOrderOfTheirStart)
{
    ManualExecutor executor;
    std::vector<std::string> log;
    start(executor, note(&log, "first"));
    start(executor, note(&log, "second"));
    executor.run();
    EXPECT_EQ(log, (std::vector<std::string>{"first", "second"}));
}

TEST(Task, RunElsewhereResumesWhereItWasAwaited)
{
    ManualExecutor home;
    ManualExecutor elsewhere;
    int value = 0;
    start(home, awaitElsewhere(elsewhere, give(7), &value));

    home.run();
    EXPECT_EQ(value, 0);
    elsewhere.run();
    EXPECT_EQ(value, 0) << "the awaiter must not run on the other executor";
    home.run();
    EXPECT_EQ(value, 7);
}

TEST(Task, OnTheExecutorWhereItIsAwaitedItTakesNoTurnOfItsOwn)
{
    ManualExecutor home;
    int value = 0;
    start(home, awaitElsewhere(home, give(7), &value));
    home.runOne();
    EXPECT_EQ(value, 7);
}

Task<void> catchElsewhere(platform::Executor& elsewhere, std::string* caught)
{
    try {
        auto there = on(elsewhere, fail("no luck"));
        co_await std::move(there);
    } catch (const std::runtime_error& error) {
        *caught = error.what();
    }
}

TEST(Task, AnExceptionFromElsewhereIsThrownWhereItWasAwaited)
{
    ManualExecutor home;
    ManualExecutor elsewhere;
    std::string caught;
    start(home, catchElsewhere(elsewhere, &caught));
    home.run();
    elsewhere.run();
    EXPECT_EQ(caught, "");
    home.run();
    EXPECT_EQ(caught, "no luck");
}

TEST(TaskDeathTest, AnExceptionThatEscapesAStartedTaskEndsTheProcessLoudly)
{
    EXPECT_DEATH(
        {
            ManualExecutor executor;
            int value = 0;
            start(executor, await(fail("nobody caught me"), &value));
            executor.run();
        },
        "an exception escaped a task: nobody caught me");
}

Task<int> nested(int depth)
{
    if (depth == 0) co_return 0;
    auto deeper = nested(depth - 1);
    co_return 1 + co_await std::move(deeper);
}

Task<void> inARow(int count, int* sum)
{
    for (int i = 0; i < count; ++i) {
        auto next = give(1);
        *sum += co_await std::move(next);
    }
}

TEST(Task, TenThousandNestedAwaitsDoNotGrowTheStack)
{
    ManualExecutor executor;
    int depth = 0;
    start(executor, await(nested(10'000), &depth));
    executor.run();
    EXPECT_EQ(depth, 10'000);
}

TEST(Task, AHundredThousandAwaitsInARowDoNotGrowTheStack)
{
    ManualExecutor executor;
    int sum = 0;
    start(executor, inARow(100'000, &sum));
    executor.run();
    EXPECT_EQ(sum, 100'000);
}

Task<std::thread::id> whereAmI()
{
    co_return std::this_thread::get_id();
}

Task<void> hop(platform::Executor& elsewhere, int times, int* hops, bool* stayedHome)
{
    const auto home = std::this_thread::get_id();
    for (int i = 0; i < times; ++i) {
        auto there = on(elsewhere, whereAmI());
        const auto visited = co_await std::move(there);
        *stayedHome = *stayedHome && visited != home && std::this_thread::get_id() == home;
        ++*hops;
    }
}

TEST(Task, ThousandsOfHopsBetweenThreadsEachComeBackHome)
{
    int hops = 0;
    bool stayedHome = true;
    {
        ThreadExecutor home;
        ThreadExecutor elsewhere;
        start(home, hop(elsewhere, 5'000, &hops, &stayedHome));
        home.waitUntil([&hops] { return hops == 5'000; });
    }
    EXPECT_EQ(hops, 5'000);
    EXPECT_TRUE(stayedHome);
}

struct Sentinel {
    explicit Sentinel(bool* gone)
        : gone_(gone)
    {
    }
    Sentinel(const Sentinel&) = delete;
    Sentinel& operator=(const Sentinel&) = delete;
    ~Sentinel() { *gone_ = true; }
    bool* gone_;
};

Task<void> holdWhileElsewhere(platform::Executor& elsewhere, std::unique_ptr<Sentinel> held)
{
    auto there = on(elsewhere, give(1));
    co_await std::move(there);
    held.reset();
}

TEST(Task, DroppedWithItsExecutorItFreesWhatItHeld)
{
    bool gone = false;
    {
        ManualExecutor home;
        ManualExecutor elsewhere;
        start(home, holdWhileElsewhere(elsewhere, std::make_unique<Sentinel>(&gone)));
        home.run();
        EXPECT_FALSE(gone);
        elsewhere.drop();
        home.run();
    }
    EXPECT_TRUE(gone);
}

TEST(Task, NeverStartedItFreesItsArguments)
{
    bool gone = false;
    {
        ManualExecutor elsewhere;
        const auto task = holdWhileElsewhere(elsewhere, std::make_unique<Sentinel>(&gone));
        EXPECT_FALSE(gone);
    }
    EXPECT_TRUE(gone);
}

}  // namespace

}  // namespace larkspan::support
