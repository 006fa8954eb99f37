#pragma once

#include <deque>
#include <mutex>
#include <optional>
#include <utility>

#include "platform/Executor.h"

namespace larkspan::fakes {

/// An executor turned by the test's hand.
class ManualExecutor final : public platform::Executor {
public:
    ~ManualExecutor() override { drop(); }

    void post(support::UniqueFunction<void()> work) override
    {
        const std::scoped_lock lock(mutex_);
        queue_.push_back(std::move(work));
    }

    /// Runs the oldest piece of work; false if there was none.
    bool runOne()
    {
        auto work = next();
        if (!work) return false;
        (*work)();
        return true;
    }

    /// Runs until nothing is left, and counts the pieces.
    int run()
    {
        int count = 0;
        while (runOne()) ++count;
        return count;
    }

    /// Destroys what is queued without running it, and what that queues in turn.
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
};

}  // namespace larkspan::fakes
