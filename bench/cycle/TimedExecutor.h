#pragma once

#include <algorithm>
#include <chrono>
#include <deque>
#include <utility>

#include "platform/Executor.h"

namespace larkspan::bench {

/// Runs posted work in turns, and measures each turn.
class TimedExecutor final : public platform::Executor {
    using Milliseconds = std::chrono::duration<double, std::milli>;

public:
    void post(support::UniqueFunction<void()> work) override { queue_.push_back(std::move(work)); }

    /// Runs the waiting work; returns false if there was none.
    bool turn()
    {
        if (queue_.empty()) return false;
        auto work = std::exchange(queue_, {});
        for (auto& piece : work) {
            const auto begin = std::chrono::steady_clock::now();
            piece();
            piece = {};
            const Milliseconds taken = std::chrono::steady_clock::now() - begin;
            longest_ = std::max(longest_, taken);
            all_ += taken;
        }
        return true;
    }

    void restart() { longest_ = all_ = {}; }
    double longest() const { return longest_.count(); }
    double all() const { return all_.count(); }

private:
    std::deque<support::UniqueFunction<void()>> queue_;
    Milliseconds longest_{};
    Milliseconds all_{};
};

}  // namespace larkspan::bench
