#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "platform/Executor.h"

namespace larkspan::bridge {

/// Turns notices that come before each change into one call after all changes of a turn of the event loop.
class ChangeNotice {
public:
    ChangeNotice(platform::Executor& main, std::function<void()> changed)
        : main_(main)
        , state_(std::make_shared<State>(State{std::move(changed)}))
    {
    }

    /// Something is about to change.
    void announce() const
    {
        if (std::exchange(state_->isPending, true)) return;
        main_.post([weak = std::weak_ptr(state_)] {
            const auto state = weak.lock();
            if (!state) return;
            state->isPending = false;
            state->changed();
        });
    }

private:
    struct State {
        std::function<void()> changed;
        bool isPending = false;
    };

    platform::Executor& main_;
    std::shared_ptr<State> state_;
};

}  // namespace larkspan::bridge
