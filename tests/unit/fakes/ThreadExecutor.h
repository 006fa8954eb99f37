#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>

#include "platform/Executor.h"

namespace larkspan::fakes {

/// A thread with a queue, for tests that need real threads.
class ThreadExecutor final : public platform::Executor {
public:
    ThreadExecutor()
        : thread_([this] { turn(); })
    {
    }

    ~ThreadExecutor() override
    {
        {
            const std::scoped_lock lock(mutex_);
            ending_ = true;
        }
        changed_.notify_all();
        thread_.join();
    }

    void post(support::UniqueFunction<void()> work) override
    {
        {
            const std::scoped_lock lock(mutex_);
            queue_.push_back(std::move(work));
        }
        changed_.notify_all();
    }

    /// Blocks the caller until `done`, called on this thread, returns true.
    void waitUntil(std::function<bool()> done)
    {
        std::mutex mutex;
        std::condition_variable answered;
        for (bool finished = false; !finished;) {
            bool asked = false;
            post([&] {
                const std::scoped_lock lock(mutex);
                finished = done();
                asked = true;
                answered.notify_one();
            });
            std::unique_lock lock(mutex);
            answered.wait(lock, [&asked] { return asked; });
        }
    }

private:
    void turn()
    {
        std::unique_lock lock(mutex_);
        while (true) {
            changed_.wait(lock, [this] { return ending_ || !queue_.empty(); });
            if (queue_.empty()) return;
            auto work = std::move(queue_.front());
            queue_.pop_front();
            lock.unlock();
            work();
            work = {};
            lock.lock();
        }
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<support::UniqueFunction<void()>> queue_;
    bool ending_ = false;
    std::thread thread_;
};

}  // namespace larkspan::fakes
