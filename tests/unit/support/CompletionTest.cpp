#include "support/Completion.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "fakes/ManualExecutor.h"
#include "fakes/ThreadExecutor.h"

namespace larkspan::support {

namespace {

using fakes::ManualExecutor;
using fakes::ThreadExecutor;

/// Cannot be default-constructed or copied, like some results.
struct Parcel {
    explicit Parcel(int number)
        : content(std::make_unique<int>(number))
    {
    }
    std::unique_ptr<int> content;
};

using Desk = std::optional<Completion<Parcel>>;

Task<void> awaitParcel(Desk* desk, std::string* result)
{
    try {
        auto park = [desk](Completion<Parcel> completion) { desk->emplace(std::move(completion)); };
        auto waiting = completion<Parcel>(std::move(park));
        const Parcel parcel = co_await std::move(waiting);
        *result = std::to_string(*parcel.content);
    } catch (const std::runtime_error& error) {
        *result = error.what();
    }
}

TEST(Completion, GivesItsResultToTheAwaiterOnTheAwaitersExecutor)
{
    ManualExecutor home;
    Desk desk;
    std::string result;
    start(home, awaitParcel(&desk, &result));
    home.run();
    ASSERT_TRUE(desk);

    desk->give(Outcome<Parcel>::success(Parcel(42)));
    EXPECT_EQ(result, "") << "giving must not run the awaiter";
    home.run();
    EXPECT_EQ(result, "42");
}

TEST(Completion, GivesAFailureAsAnException)
{
    ManualExecutor home;
    Desk desk;
    std::string result;
    start(home, awaitParcel(&desk, &result));
    home.run();
    desk->give(Outcome<Parcel>::failure(std::make_exception_ptr(std::runtime_error("lost"))));
    home.run();
    EXPECT_EQ(result, "lost");
}

TEST(Completion, GivenInATurnOfTheAwaitersExecutorItMayResumeTheAwaiterInThatTurn)
{
    ManualExecutor home;
    Desk desk;
    std::string result;
    start(home, awaitParcel(&desk, &result));
    home.run();
    home.post([&] {
        desk->giveInThisTurn(Outcome<Parcel>::success(Parcel(42)));
        EXPECT_EQ(result, "42");
    });
    home.runOne();
    EXPECT_EQ(result, "42");
}

TEST(Completion, MayBeGivenFromAnotherThread)
{
    std::string result;
    ThreadExecutor home;
    ThreadExecutor postOffice;
    Desk desk;
    start(home, awaitParcel(&desk, &result));
    home.waitUntil([&desk] { return desk.has_value(); });
    postOffice.post([&desk] { desk->give(Outcome<Parcel>::success(Parcel(1))); });
    home.waitUntil([&result] { return !result.empty(); });
    EXPECT_EQ(result, "1");
}

Task<void> awaitHolding(Desk* desk, std::shared_ptr<int> held, std::string* result)
{
    auto waiting = awaitParcel(desk, result);
    co_await std::move(waiting);
    *held = 1;
}

TEST(Completion, DroppedUnansweredItUnwindsTheAwaitingTask)
{
    ManualExecutor home;
    Desk desk;
    std::string result;
    auto held = std::make_shared<int>(0);
    start(home, awaitHolding(&desk, held, &result));
    home.run();
    EXPECT_EQ(held.use_count(), 2);

    desk.reset();
    EXPECT_EQ(held.use_count(), 2) << "the frames belong to their executor and go there";
    home.run();
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_EQ(result, "");
    EXPECT_EQ(*held, 0);
}

TEST(Completion, AnsweredAtOnceItStillResumesInATurnOfItsOwn)
{
    ManualExecutor home;
    bool ended = false;
    struct Run {
        static Task<void> atOnce(bool* flag)
        {
            auto answer = [](Completion<void> completion) { completion.give(Outcome<void>::success()); };
            auto waiting = completion<void>(std::move(answer));
            co_await std::move(waiting);
            *flag = true;
        }
    };
    start(home, Run::atOnce(&ended));
    home.runOne();
    EXPECT_FALSE(ended);
    home.run();
    EXPECT_TRUE(ended);
}

}  // namespace

}  // namespace larkspan::support
