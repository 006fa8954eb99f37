#include "adapters/http/ClientLoop.h"

#include <gtest/gtest.h>

#include <csignal>
#include <future>
#include <thread>
#include <vector>

namespace larkspan::adapters {
namespace {

TEST(ClientLoop, RunsWorkOnItsOwnThreadInTheOrderPosted)
{
    std::vector<int> order;
    std::thread::id thread;
    {
        ClientLoop loop;
        loop.post([&] { order.push_back(1); });
        loop.post([&] { order.push_back(2); });
        loop.post([&] { thread = std::this_thread::get_id(); });
    }
    EXPECT_EQ(order, (std::vector{1, 2}));
    EXPECT_NE(thread, std::thread::id());
    EXPECT_NE(thread, std::this_thread::get_id());
}

TEST(ClientLoop, IsWokenByAPostWhileItWaits)
{
    ClientLoop loop;
    for (int i = 0; i < 100; ++i) {
        std::promise<void> ran;
        loop.post([&] { ran.set_value(); });
        ASSERT_EQ(ran.get_future().wait_for(std::chrono::seconds(5)), std::future_status::ready);
    }
}

TEST(ClientLoop, RunsWhatIsQueuedAndWhatThatQueuesBeforeItEnds)
{
    int ran = 0;
    {
        ClientLoop loop;
        loop.post([&] {
            ++ran;
            loop.post([&] {
                ++ran;
                loop.post([&] { ++ran; });
            });
        });
    }
    EXPECT_EQ(ran, 3);
}

TEST(ClientLoop, LeavesSignalsToTheMainThread)
{
    ClientLoop loop;
    std::promise<bool> isDeaf;
    loop.post([&] {
        sigset_t blocked;
        pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
        isDeaf.set_value(sigismember(&blocked, SIGTERM) == 1 && sigismember(&blocked, SIGPIPE) == 1);
    });
    EXPECT_TRUE(isDeaf.get_future().get());
}

TEST(ClientLoop, SetsAnAlarmOffWhenItIsDueAndInTheOrderOfTime)
{
    std::vector<int> order;
    std::promise<void> done;
    ClientLoop loop;
    std::vector<ClientLoop::Alarm> alarms;
    loop.post([&] {
        const auto now = ClientLoop::Clock::now();
        const auto in = [now](int milliseconds) { return now + std::chrono::milliseconds(milliseconds); };
        alarms.push_back(loop.at(in(40), [&] { done.set_value(); }));
        alarms.push_back(loop.at(in(20), [&] { order.push_back(2); }));
        alarms.push_back(loop.at(in(10), [&] { order.push_back(1); }));
    });
    const auto start = ClientLoop::Clock::now();
    done.get_future().wait();
    EXPECT_GE(ClientLoop::Clock::now() - start, std::chrono::milliseconds(35));
    EXPECT_EQ(order, (std::vector{1, 2}));
}

TEST(ClientLoop, ForgetsAnAlarmThatIsDropped)
{
    std::promise<void> later;
    bool wentOff = false;
    ClientLoop loop;
    ClientLoop::Alarm kept;
    loop.post([&] {
        const auto now = ClientLoop::Clock::now();
        auto dropped = loop.at(now + std::chrono::milliseconds(5), [&] { wentOff = true; });
        kept = loop.at(now + std::chrono::milliseconds(20), [&] { later.set_value(); });
    });
    later.get_future().wait();
    EXPECT_FALSE(wentOff);
}

TEST(ClientLoop, TakesWorkFromManyThreadsAndKeepsTheOrderOfEach)
{
    constexpr int threads = 8;
    constexpr int posts = 2'000;
    std::vector<std::vector<int>> seen(threads);
    {
        ClientLoop loop;
        std::vector<std::jthread> posters;
        for (int thread = 0; thread < threads; ++thread)
            posters.emplace_back([&loop, &seen, thread] {
                for (int i = 0; i < posts; ++i)
                    loop.post([&seen, thread, i] { seen[static_cast<std::size_t>(thread)].push_back(i); });
            });
    }
    std::vector<int> expected(posts);
    for (int i = 0; i < posts; ++i) expected[static_cast<std::size_t>(i)] = i;
    for (const auto& own : seen) EXPECT_EQ(own, expected);
}

}  // namespace
}  // namespace larkspan::adapters
