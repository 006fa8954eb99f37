#include "adapters/MainExecutor.h"

#include <QEventLoop>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <thread>
#include <vector>

#include "peers/EventLoop.h"
#include "support/Completion.h"

namespace larkspan::adapters {
namespace {

using peers::turnFor;
using peers::turnUntil;
using namespace std::chrono_literals;

bool isMainThread()
{
    return QThread::currentThread() == QCoreApplication::instance()->thread();
}

/// Posts again when it is destroyed, as the frame of an unwinding task does.
struct PostsWhenDestroyed {
    PostsWhenDestroyed(platform::Executor& executorToUse, int generationsLeft, int& destroyedCount)
        : executor(executorToUse)
        , generations(generationsLeft)
        , destroyed(destroyedCount)
    {
    }
    ~PostsWhenDestroyed()
    {
        ++destroyed;
        if (generations == 0) return;
        auto next = std::make_unique<PostsWhenDestroyed>(executor, generations - 1, destroyed);
        executor.post([next = std::move(next)] { FAIL() << "dropped work ran"; });
    }

    platform::Executor& executor;
    int generations;
    int& destroyed;
};

TEST(MainExecutor, NeverRunsWorkInsideThePost)
{
    MainExecutor executor;
    bool ran = false;

    executor.post([&ran] { ran = true; });

    EXPECT_FALSE(ran);
    EXPECT_TRUE(turnUntil([&] { return ran; }));
}

TEST(MainExecutor, RunsWorkOfManyThreadsOnTheMainThreadInTheOrderPosted)
{
    MainExecutor executor;
    constexpr int threads = 4;
    constexpr int each = 500;
    std::vector<std::vector<int>> seen(threads);
    bool elsewhere = false;

    std::vector<std::jthread> posters;
    for (std::size_t thread = 0; thread < threads; ++thread) {
        posters.emplace_back([&, thread] {
            for (int number = 0; number < each; ++number) {
                executor.post([&, thread, number] {
                    elsewhere = elsewhere || !isMainThread();
                    seen[thread].push_back(number);
                });
            }
        });
    }
    posters.clear();

    ASSERT_TRUE(turnUntil([&] { return std::ranges::all_of(seen, [](auto& one) { return one.size() == each; }); }));
    EXPECT_TRUE(std::ranges::all_of(seen, [](auto& one) { return std::ranges::is_sorted(one); }));
    EXPECT_FALSE(elsewhere);
}

TEST(MainExecutor, KeepsTheOrderThroughANestedEventLoop)
{
    MainExecutor executor;
    std::vector<int> order;
    QEventLoop nested;

    executor.post([&] {
        executor.post([&] {
            order.push_back(3);
            nested.quit();
        });
        nested.exec();
        order.push_back(4);
    });
    executor.post([&] { order.push_back(1); });
    executor.post([&] { order.push_back(2); });

    ASSERT_TRUE(turnUntil([&] { return order.size() == 4; }));
    EXPECT_EQ(order, (std::vector{1, 2, 3, 4}));
}

TEST(MainExecutor, WorkThatPostsItselfOnAndOnLeavesRoomForOtherEvents)
{
    MainExecutor executor;
    bool stop = false;
    std::function<void()> again = [&] {
        if (!stop) executor.post(again);
    };
    bool otherEventSeen = false;

    executor.post(again);
    QMetaObject::invokeMethod(&executor, [&] { otherEventSeen = true; }, Qt::QueuedConnection);

    EXPECT_TRUE(turnUntil([&] { return otherEventSeen; }));
    stop = true;
    turnFor(10ms);
}

TEST(MainExecutor, PiecesOfLongWorkLeaveRoomForOtherEventsBetweenThem)
{
    MainExecutor executor;
    int turns = 0;
    QTimer other;
    QObject::connect(&other, &QTimer::timeout, [&] { ++turns; });
    other.start(0);
    std::vector<int> turnsBefore;
    const std::function<void()> piece = [&] {
        turnsBefore.push_back(turns);
        if (turnsBefore.size() < 5) executor.post(piece);
        std::this_thread::sleep_for(10ms);
    };

    executor.post(piece);

    ASSERT_TRUE(turnUntil([&] { return turnsBefore.size() == 5; }));
    for (std::size_t at = 1; at < turnsBefore.size(); ++at) EXPECT_GT(turnsBefore[at], turnsBefore[at - 1]) << at;
}

TEST(MainExecutor, ANestedEventLoopInLongWorkGoesOnWithTheRest)
{
    MainExecutor executor;
    QEventLoop nested;
    std::vector<int> order;
    executor.post([&] {
        std::this_thread::sleep_for(10ms);
        order.push_back(1);
    });
    executor.post([&] {
        std::this_thread::sleep_for(10ms);
        nested.exec();
        order.push_back(3);
    });
    executor.post([&] {
        order.push_back(2);
        nested.quit();
    });

    ASSERT_TRUE(turnUntil([&] { return order.size() == 3; }));
    EXPECT_EQ(order, (std::vector{1, 2, 3}));
}

TEST(MainExecutor, DestroysWorkLeftAtItsEndAndWhatThatPosts)
{
    int destroyed = 0;
    {
        MainExecutor executor;
        auto work = std::make_unique<PostsWhenDestroyed>(executor, 3, destroyed);
        executor.post([work = std::move(work)] { FAIL() << "dropped work ran"; });
    }
    EXPECT_EQ(destroyed, 4);
    turnFor(10ms);
}

TEST(MainExecutor, DropSaysWhetherThereWasAnythingAndLeavesTheExecutorUsable)
{
    MainExecutor executor;
    executor.post([] { FAIL() << "dropped work ran"; });

    EXPECT_TRUE(executor.drop());
    EXPECT_FALSE(executor.drop());

    bool ran = false;
    executor.post([&ran] { ran = true; });
    EXPECT_TRUE(turnUntil([&] { return ran; }));
}

support::Task<void> noteThreadAfterAnswer(
    std::shared_ptr<std::optional<support::Completion<void>>> pending, std::shared_ptr<bool> resumedOnMain)
{
    auto park = [pending](support::Completion<void> completion) { pending->emplace(std::move(completion)); };
    auto answer = support::completion<void>(std::move(park));
    co_await std::move(answer);
    *resumedOnMain = isMainThread();
}

TEST(MainExecutor, ATaskResumesOnTheMainThreadWhenAnotherThreadAnswers)
{
    MainExecutor executor;
    const auto pending = std::make_shared<std::optional<support::Completion<void>>>();
    const auto resumedOnMain = std::make_shared<bool>(false);
    support::start(executor, noteThreadAfterAnswer(pending, resumedOnMain));
    ASSERT_TRUE(turnUntil([&] { return pending->has_value(); }));

    std::jthread([&] { (*pending)->give(support::Outcome<void>::success()); }).join();

    EXPECT_TRUE(turnUntil([&] { return *resumedOnMain; }));
}

TEST(MainExecutor, ATaskWhoseAnswerIsDroppedUnwindsAtTheExecutorsEnd)
{
    const auto resumedOnMain = std::make_shared<bool>(false);
    const auto pending = std::make_shared<std::optional<support::Completion<void>>>();
    {
        MainExecutor executor;
        support::start(executor, noteThreadAfterAnswer(pending, resumedOnMain));
        ASSERT_TRUE(turnUntil([&] { return pending->has_value(); }));
        pending->reset();
    }
    EXPECT_EQ(resumedOnMain.use_count(), 1);
    EXPECT_FALSE(*resumedOnMain);
}

}  // namespace
}  // namespace larkspan::adapters
