#include "support/Child.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "fakes/ManualExecutor.h"

namespace larkspan::support {

namespace {

using fakes::ManualExecutor;
using Log = std::vector<std::string>;

Task<std::string> work(Log* log, std::string name)
{
    log->emplace_back(name + " begins");
    co_return name;
}

Task<std::string> failing(std::string text)
{
    throw std::runtime_error(text);
    co_return text;
}

Task<void> awaitBoth(platform::Executor& main, Log* log)
{
    Child<std::string> first(main, work(log, "first"));
    Child<std::string> second(main, work(log, "second"));
    log->emplace_back("both started");
    auto secondResult = second.result();
    log->emplace_back(co_await std::move(secondResult) + " ended");
    auto firstResult = first.result();
    log->emplace_back(co_await std::move(firstResult) + " ended");
}

TEST(Child, RunsBesideItsParentAndMayBeAwaitedInAnyOrder)
{
    ManualExecutor main;
    Log log;
    start(main, awaitBoth(main, &log));
    main.run();
    EXPECT_EQ(log, (Log{"both started", "first begins", "second begins", "second ended", "first ended"}));
}

Task<void> awaitFailure(platform::Executor& main, Log* log)
{
    Child<std::string> child(main, failing("broken"));
    auto end = child.settled();
    co_await std::move(end);
    log->emplace_back("settled");
    try {
        auto result = child.result();
        co_await std::move(result);
    } catch (const std::runtime_error& error) {
        log->emplace_back(error.what());
    }
}

TEST(Child, SettlesWithoutThrowingAndThrowsFromItsResult)
{
    ManualExecutor main;
    Log log;
    start(main, awaitFailure(main, &log));
    main.run();
    EXPECT_EQ(log, (Log{"settled", "broken"}));
}

Task<void> awaitVoid(platform::Executor& main, platform::Executor& elsewhere, Log* log)
{
    struct Note {
        static Task<void> down(Log* into)
        {
            into->emplace_back("elsewhere");
            co_return;
        }
    };
    Child<void> child(main, on(elsewhere, Note::down(log)));
    auto result = child.result();
    co_await std::move(result);
    log->emplace_back("home");
}

TEST(Child, WithoutAResultCanBeAwaitedToo)
{
    ManualExecutor main;
    ManualExecutor elsewhere;
    Log log;
    start(main, awaitVoid(main, elsewhere, &log));
    main.run();
    elsewhere.run();
    EXPECT_EQ(log, (Log{"elsewhere"}));
    main.run();
    EXPECT_EQ(log, (Log{"elsewhere", "home"}));
}

Task<void> dropAtOnce(platform::Executor& main, Log* log)
{
    {
        const Child<std::string> child(main, work(log, "child"));
    }
    log->emplace_back("parent ended");
    co_return;
}

TEST(Child, DroppedItRunsOnUnheard)
{
    ManualExecutor main;
    Log log;
    start(main, dropAtOnce(main, &log));
    main.run();
    EXPECT_EQ(log, (Log{"parent ended", "child begins"}));
}

Task<void> waitFor(std::optional<Completion<void>>* answer)
{
    auto park = [answer](Completion<void> completion) { answer->emplace(std::move(completion)); };
    auto waiting = completion<void>(std::move(park));
    co_await std::move(waiting);
}

Task<void> awaitChild(platform::Executor& main, std::optional<Completion<void>>* answer, std::shared_ptr<int> witness)
{
    Child<void> child(main, waitFor(answer));
    auto result = child.result();
    co_await std::move(result);
    ++*witness;
}

TEST(Child, WhoseWorkIsDroppedLetsGoOfItsAwaiterToo)
{
    ManualExecutor main;
    std::optional<Completion<void>> answer;
    const auto witness = std::make_shared<int>(0);
    start(main, awaitChild(main, &answer, witness));
    main.run();
    ASSERT_EQ(witness.use_count(), 2);
    answer.reset();
    main.run();
    EXPECT_EQ(witness.use_count(), 1);
    EXPECT_EQ(*witness, 0);
}

TEST(Child, ThatIsDroppedBeforeItsFirstTurnLetsGoOfItsAwaiterToo)
{
    ManualExecutor main;
    std::optional<Completion<void>> answer;
    const auto witness = std::make_shared<int>(0);
    start(main, awaitChild(main, &answer, witness));
    main.runOne();
    ASSERT_FALSE(answer) << "the child has begun";
    ASSERT_EQ(witness.use_count(), 2);
    main.drop();
    EXPECT_EQ(witness.use_count(), 1);
}

}  // namespace

}  // namespace larkspan::support
