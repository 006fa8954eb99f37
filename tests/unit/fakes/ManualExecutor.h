#pragma once

#include <deque>
#include <mutex>
#include <optional>
#include <utility>

#include "platform/Executor.h"

namespace larkspan::fakes {

/// An executor that runs work only when the test says so.
class ManualExecutor final : public platform::Executor {
public:
    ~ManualExecutor() override { drop(); }

    void post(support::UniqueFunction<void()> work) override
    {
        const std::scoped_lock lock(mutex_);
        queue_.push_back(std::move(work));
        ++posts_;
    }

    /// How often something was posted, run by now or not.
    int posts()
    {
        const std::scoped_lock lock(mutex_);
        return posts_;
    }

    /// Runs the oldest piece of work; returns false if there was none.
    bool runOne()
    {
        auto work = next();
        if (!work) return false;
        (*work)();
        return true;
    }

    /// Runs work until nothing is left; returns the number of pieces.
    int run()
    {
        int count = 0;
        while (runOne()) ++count;
        return count;
    }

    /// Destroys the queued work without running it, and the work which that queues in turn.
    void drop()
    {
        while (next()) {}
    }

private:
    std::optional<support::UniqueFunction<void()>> next()
    {
        const std::scoped_lock lock(mutex_);
        if (queue_.empty()) return std::nullopt;
        auto work = std::move(queue_.front());
        queue_.pop_front();
        return work;
    }

    std::mutex mutex_;
    std::deque<support::UniqueFunction<void()>> queue_;
    int posts_ = 0;
};

}  // namespace larkspan::fakes
