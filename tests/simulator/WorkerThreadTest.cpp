#include "inprocess/WorkerThread.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>
#include <memory>
#include <optional>
#include <vector>

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

TEST(WorkerThread, RunsWhatIsPostedInItsOrderOnItsOwnThread)
{
    WorkerThread worker;
    std::vector<int> order;
    std::promise<std::thread::id> done;

    for (int index = 0; index < 100; ++index) worker.post([&order, index] { order.push_back(index); });
    worker.post([&done] { done.set_value(std::this_thread::get_id()); });

    EXPECT_NE(done.get_future().get(), std::this_thread::get_id());
    EXPECT_EQ(order.size(), 100u);
    EXPECT_TRUE(std::ranges::is_sorted(order));
}

TEST(WorkerThread, RunsTheSoonerFirst)
{
    WorkerThread worker;
    std::vector<std::string> order;
    std::promise<void> done;

    worker.after(20ms, [&] {
        order.emplace_back("later");
        done.set_value();
    });
    worker.after(5ms, [&] { order.emplace_back("soon"); });
    worker.post([&] { order.emplace_back("now"); });

    done.get_future().wait();
    EXPECT_THAT(order, testing::ElementsAre("now", "soon", "later"));
}

TEST(WorkerThread, DestroysWhatIsLeftAndWhatThatPosts)
{
    struct PostsWhenDestroyed {
        explicit PostsWhenDestroyed(WorkerThread& target, int& destroyed)
            : worker(target)
            , count(destroyed)
        {
        }
        ~PostsWhenDestroyed()
        {
            ++count;
            worker.post([last = std::shared_ptr<void>(nullptr, [&count = count](void*) { ++count; })] {});
        }
        WorkerThread& worker;
        int& count;
    };
    int destroyed = 0;
    {
        WorkerThread worker;
        worker.after(1h, [kept = std::make_unique<PostsWhenDestroyed>(worker, destroyed)] {});
    }

    EXPECT_EQ(destroyed, 2);
}

}  // namespace
}  // namespace larkspan::simulator
