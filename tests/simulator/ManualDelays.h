#pragma once

#include <chrono>
#include <map>
#include <utility>

#include "inprocess/Delays.h"

namespace larkspan::simulator {

/// Delays that end as the test advances the time.
class ManualDelays final : public Delays {
public:
    void after(std::chrono::milliseconds wait, support::UniqueFunction<void()> work) override
    {
        queue_.emplace(now_ + wait, std::move(work));
    }

    void advance(std::chrono::milliseconds span)
    {
        const auto end = now_ + span;
        while (!queue_.empty() && queue_.begin()->first <= end) {
            auto next = queue_.extract(queue_.begin());
            now_ = next.key();
            next.mapped()();
        }
        now_ = end;
    }

private:
    std::chrono::milliseconds now_{0};
    std::multimap<std::chrono::milliseconds, support::UniqueFunction<void()>> queue_;
};

}  // namespace larkspan::simulator
