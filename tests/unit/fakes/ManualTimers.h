#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/Timers.h"

namespace larkspan::fakes {

/// Timers that fire as the test advances the time.
class ManualTimers final : public platform::Timers {
public:
    std::unique_ptr<platform::Timer> every(std::chrono::milliseconds period, std::function<void()> fire) override
    {
        auto state = std::make_shared<State>(State{period, now_ + period, std::move(fire)});
        states_.push_back(state);
        return std::make_unique<RunningTimer>(std::move(state));
    }

    /// Advances the time by `span` and fires the due timers in order.
    void advance(std::chrono::milliseconds span)
    {
        const auto end = now_ + span;
        while (const auto due = nextDue(end)) {
            now_ = due->next;
            due->next += due->period;
            due->fire();
        }
        now_ = end;
    }

    std::vector<std::chrono::milliseconds> periods()
    {
        dropStopped();
        std::vector<std::chrono::milliseconds> found;
        for (const auto& state : states_) found.push_back(state.lock()->period);
        return found;
    }

private:
    struct State {
        std::chrono::milliseconds period;
        std::chrono::milliseconds next;
        std::function<void()> fire;
    };

    struct RunningTimer final : platform::Timer {
        explicit RunningTimer(std::shared_ptr<State> running)
            : state(std::move(running))
        {
        }
        std::shared_ptr<State> state;
    };

    void dropStopped()
    {
        std::erase_if(states_, [](const auto& state) { return state.expired(); });
    }

    std::shared_ptr<State> nextDue(std::chrono::milliseconds end)
    {
        dropStopped();
        std::shared_ptr<State> earliest;
        for (const auto& weak : states_) {
            const auto state = weak.lock();
            if (state->next <= end && (!earliest || state->next < earliest->next)) earliest = state;
        }
        return earliest;
    }

    std::chrono::milliseconds now_{0};
    std::vector<std::weak_ptr<State>> states_;
};

}  // namespace larkspan::fakes
