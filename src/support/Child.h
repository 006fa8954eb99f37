#pragma once

#include <exception>
#include <memory>
#include <optional>
#include <utility>

#include "support/Completion.h"
#include "support/Outcome.h"
#include "support/Task.h"

namespace larkspan::support {

/// A task that is started now and awaited later, on the same executor. After destruction it runs on, and its result is
/// ignored.
template <typename T>
class Child {
public:
    Child(platform::Executor& executor, Task<T> task) { start(executor, run(Release{state_}, std::move(task))); }

    /// Returns the task's result or throws its exception. Await it once.
    Task<T> result() { return takeResult(state_); }

    /// Ends when the task has ended, with or without an exception.
    Task<void> settled() { return awaitEnd(state_); }

private:
    struct State {
        std::optional<Outcome<T>> outcome;
        std::optional<Completion<void>> waiter;
    };
    using StatePointer = std::shared_ptr<State>;

    /// Releases the awaiter when the task ends or is destroyed, perhaps before its first turn, since they hold each
    /// other.
    struct Release {
        explicit Release(StatePointer of)
            : state(std::move(of))
        {
        }
        Release(Release&&) noexcept = default;
        Release& operator=(Release&&) = delete;
        ~Release()
        {
            if (!state) return;
            const auto released = std::exchange(state->waiter, std::nullopt);
        }

        StatePointer state;
    };

    static Task<void> run(Release release, Task<T> task)
    {
        const auto& state = release.state;
        try {
            if constexpr (std::is_void_v<T>) {
                co_await std::move(task);
                state->outcome = Outcome<T>::success();
            } else {
                T value = co_await std::move(task);
                state->outcome = Outcome<T>::success(std::move(value));
            }
        } catch (...) {
            state->outcome = Outcome<T>::failure(std::current_exception());
        }
        if (auto waiter = std::exchange(state->waiter, std::nullopt)) waiter->giveInThisTurn(Outcome<void>::success());
    }

    static Task<void> awaitEnd(StatePointer state)
    {
        if (state->outcome) co_return;
        auto park = [state](Completion<void> waiter) { state->waiter.emplace(std::move(waiter)); };
        auto end = completion<void>(std::move(park));
        co_await std::move(end);
    }

    static Task<T> takeResult(StatePointer state)
    {
        auto end = awaitEnd(state);
        co_await std::move(end);
        auto& outcome = state->outcome;
        if (!outcome) std::terminate();
        co_return outcome->take();
    }

    StatePointer state_ = std::make_shared<State>();
};

}  // namespace larkspan::support
