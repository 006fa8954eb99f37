#include "support/UniqueFunction.h"

#include <gtest/gtest.h>

#include <memory>

namespace larkspan::support {

namespace {

TEST(UniqueFunction, HoldsWhatCannotBeCopied)
{
    UniqueFunction<int(int)> add = [base = std::make_unique<int>(40)](int more) { return *base + more; };
    UniqueFunction<int(int)> moved = std::move(add);
    EXPECT_EQ(moved(2), 42);
}

TEST(UniqueFunction, IsEmptyUntilGivenACallable)
{
    UniqueFunction<void()> function;
    EXPECT_FALSE(function);
    function = [] {};
    EXPECT_TRUE(function);
}

TEST(UniqueFunction, DestroysItsCallableWithItself)
{
    auto held = std::make_shared<int>(1);
    {
        const UniqueFunction<void()> function = [held] {};
        EXPECT_EQ(held.use_count(), 2);
    }
    EXPECT_EQ(held.use_count(), 1);
}

TEST(UniqueFunction, PassesMoveOnlyArguments)
{
    UniqueFunction<int(std::unique_ptr<int>)> open = [](std::unique_ptr<int> box) { return *box; };
    EXPECT_EQ(open(std::make_unique<int>(5)), 5);
}

}  // namespace

}  // namespace larkspan::support
