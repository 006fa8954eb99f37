#include "support/AfterChanges.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "fakes/ManualExecutor.h"

namespace larkspan::support {

namespace {

struct Counter final : Observable {
    Published<int> count{*this, 0};
};

class ReactionToChanges : public testing::Test {
protected:
    fakes::ManualExecutor main;
    Counter counter;
    std::vector<int> seen;
    std::optional<AfterChanges> reaction{std::in_place, main, counter, [this] { seen.push_back(*counter.count); }};
};

TEST_F(ReactionToChanges, ComesOnceForAllOfATurnWhenTheyHaveLanded)
{
    counter.count = 1;
    counter.count = 2;
    EXPECT_TRUE(seen.empty());
    main.run();
    EXPECT_EQ(seen, std::vector{2});
}

TEST_F(ReactionToChanges, ComesAgainForTheNextTurn)
{
    counter.count = 1;
    main.run();
    counter.count = 2;
    main.run();
    EXPECT_EQ(seen, (std::vector{1, 2}));
}

TEST_F(ReactionToChanges, MayChangeSomethingItself)
{
    reaction.emplace(main, counter, [this] {
        if (*counter.count < 3) counter.count = *counter.count + 1;
    });
    counter.count = 1;
    main.run();
    EXPECT_EQ(*counter.count, 3);
}

TEST_F(ReactionToChanges, DoesNotComeOnceNobodyWaitsForIt)
{
    counter.count = 1;
    reaction.reset();
    main.run();
    counter.count = 2;
    main.run();
    EXPECT_TRUE(seen.empty());
}

}  // namespace

}  // namespace larkspan::support
