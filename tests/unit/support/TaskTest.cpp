#include "support/Task.h"

#include <gtest/gtest.h>

#include "fakes/ManualExecutor.h"

namespace larkspan::support {

namespace {

Task<int> give(int value) { co_return value; }

Task<void> store(platform::Executor& elsewhere, int* into)
{
    auto there = on(elsewhere, give(7));
    *into = co_await std::move(there);
}

TEST(Task, RunElsewhereResumesWhereItWasAwaited)
{
    fakes::ManualExecutor home;
    fakes::ManualExecutor elsewhere;
    int value = 0;
    start(home, store(elsewhere, &value));

    home.run();
    EXPECT_EQ(value, 0);
    elsewhere.run();
    EXPECT_EQ(value, 0);
    home.run();
    EXPECT_EQ(value, 7);
}

}  // namespace

}  // namespace larkspan::support
