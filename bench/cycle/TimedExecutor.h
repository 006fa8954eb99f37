#pragma once

#include <algorithm>
#include <ctime>
#include <deque>
#include <utility>

#include "platform/Executor.h"

namespace larkspan::bench {

/// Runs posted work in turns, and measures the time that the processor takes for each turn, which other programs on the
/// machine do not lengthen.
class TimedExecutor final : public platform::Executor {
public:
    void post(support::UniqueFunction<void()> work) override { queue_.push_back(std::move(work)); }

    /// Runs the waiting work; returns false if there was none.
    bool turn()
    {
        if (queue_.empty()) return false;
        auto work = std::exchange(queue_, {});
        for (auto& piece : work) {
            const auto begin = milliseconds();
            piece();
            piece = {};
            const auto taken = milliseconds() - begin;
            longest_ = std::max(longest_, taken);
            all_ += taken;
        }
        return true;
    }

    void restart() { longest_ = all_ = 0; }
    double longest() const { return longest_; }
    double all() const { return all_; }

private:
    static double milliseconds()
    {
        timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }

    std::deque<support::UniqueFunction<void()>> queue_;
    double longest_ = 0;
    double all_ = 0;
};

}  // namespace larkspan::bench
