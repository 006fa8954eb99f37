#include "presentation/screens/RunningAction.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "api/APIError.h"
#include "fakes/ManualExecutor.h"
#include "support/Completion.h"

namespace larkspan::presentation {

namespace {

using support::Task;
using Answer = support::Completion<int>;

Task<void> once(std::shared_ptr<std::vector<Answer>> pending)
{
    auto waiting = support::completion<int>([pending](Answer answer) { pending->push_back(std::move(answer)); });
    co_await std::move(waiting);
}

Task<void> failing()
{
    throw api::APIError::httpStatus(409);
    co_return;
}

class ActionOfAScreen : public testing::Test {
protected:
    void answer()
    {
        auto answers = std::move(*pending);
        pending->clear();
        for (auto& each : answers) each.give(support::Outcome<int>::success(1));
        main.run();
    }

    fakes::ManualExecutor main;
    std::shared_ptr<std::vector<Answer>> pending = std::make_shared<std::vector<Answer>>();
    std::shared_ptr<RunningAction> action = std::make_shared<RunningAction>(main);
};

TEST_F(ActionOfAScreen, IsMarkedAtOnceAndUntilItsEnd)
{
    action->run(once(pending));
    EXPECT_TRUE(*action->isInProgress);
    main.run();
    EXPECT_TRUE(*action->isInProgress);
    answer();
    EXPECT_FALSE(*action->isInProgress);
    EXPECT_EQ(action->alert.words(), "");
}

TEST_F(ActionOfAScreen, ThatFailsEndsInAnAlertWithTheErrorsWords)
{
    action->run(failing());
    main.run();
    EXPECT_FALSE(*action->isInProgress);
    EXPECT_EQ(action->alert.words(), "Server returned HTTP status code 409.");
    action->alert.dismiss();
    EXPECT_EQ(action->alert.words(), "");
}

TEST_F(ActionOfAScreen, ThatFailsWhileAnAlertIsUpIsToldAfterThat)
{
    action->run(failing());
    action->alert.raise("Could not load components.");
    main.run();
    EXPECT_EQ(action->alert.words(), "Could not load components.");
    const int first = action->alert.number();
    action->alert.dismiss();
    EXPECT_EQ(action->alert.words(), "Server returned HTTP status code 409.");
    EXPECT_NE(action->alert.number(), first);
}

TEST_F(ActionOfAScreen, BeginsWithoutTheAlertOfTheOneBefore)
{
    action->run(failing());
    main.run();
    action->run(once(pending));
    EXPECT_EQ(action->alert.words(), "");
    main.run();
    answer();
}

TEST_F(ActionOfAScreen, PressedTwiceQuicklyRunsOnce)
{
    action->run(once(pending));
    action->run(once(pending));
    main.run();
    EXPECT_EQ(pending->size(), 1u);
    answer();
}

TEST_F(ActionOfAScreen, OutlivesTheScreenThatBeganIt)
{
    action->run(once(pending));
    main.run();
    const std::weak_ptr<RunningAction> held = action;
    action.reset();
    EXPECT_FALSE(held.expired());
    answer();
    EXPECT_TRUE(held.expired());
}

TEST_F(ActionOfAScreen, TellsItsObserversOfItsBeginningAndItsEnd)
{
    std::vector<bool> seen;
    const auto subscription = action->objectWillChange([&] { seen.push_back(*action->isInProgress); });
    action->run(failing());
    main.run();
    ASSERT_FALSE(seen.empty());
    EXPECT_FALSE(seen.front()) << "before it begins";
    EXPECT_TRUE(seen.back()) << "before it ends";
}

}  // namespace

}  // namespace larkspan::presentation
