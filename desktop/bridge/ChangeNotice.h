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
        if (std::exchange(state_->isPending, true) || state_->isHeld) return;
        post();
    }

    /// Nobody sees the changes for now: what comes is told at once when they are seen again.
    void hold() { state_->isHeld = true; }
    void release()
    {
        if (std::exchange(state_->isHeld, false) && state_->isPending) post();
    }

private:
    struct State {
        std::function<void()> changed;
        bool isPending = false;
        bool isHeld = false;
    };

    void post() const
    {
        main_.post([weak = std::weak_ptr(state_)] {
            const auto state = weak.lock();
            if (!state || state->isHeld) return;
            state->isPending = false;
            state->changed();
        });
    }

    platform::Executor& main_;
    std::shared_ptr<State> state_;
};

}  // namespace larkspan::bridge
