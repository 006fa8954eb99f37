#pragma once

#include <asio/awaitable.hpp>
#include <asio/co_spawn.hpp>
#include <asio/this_coro.hpp>
#include <asio/use_awaitable.hpp>

#include <exception>
#include <utility>

#include "platform/Executor.h"

namespace larkspan::support {

/// A `platform::Executor` for asio's coroutines. The executor must outlive every task that runs on it.
class TaskExecutor {
public:
    explicit TaskExecutor(platform::Executor& executor)
        : executor_(&executor)
    {
    }

    template <typename Work>
    void execute(Work&& work) const
    {
        executor_->post(std::forward<Work>(work));
    }

    static constexpr asio::execution::blocking_t query(asio::execution::blocking_t)
    {
        return asio::execution::blocking.never;
    }

    bool operator==(const TaskExecutor&) const = default;

    platform::Executor& executor() const { return *executor_; }

private:
    platform::Executor* executor_;
};

/// Asynchronous work that returns a `T` or throws; it does nothing until it is awaited or started. A coroutine takes
/// its arguments by value, since it may outlive its caller.
template <typename T>
using Task = asio::awaitable<T, TaskExecutor>;

namespace detail {

inline constexpr asio::use_awaitable_t<TaskExecutor> awaitTask{};

[[noreturn]] void endProcess(const std::exception_ptr& escaped);

}  // namespace detail

/// Runs `task` on `executor` without waiting for it. An exception that leaves it ends the process.
inline void start(platform::Executor& executor, Task<void> task)
{
    asio::co_spawn(TaskExecutor(executor), std::move(task), [](const std::exception_ptr& failure) {
        if (failure) detail::endProcess(failure);
    });
}

/// Runs `task` on `executor` and resumes the awaiter where it awaited, with the task's result or exception. An awaiter
/// that is there already goes on with `task` itself.
template <typename T>
Task<T> on(platform::Executor& executor, Task<T> task)
{
    const TaskExecutor wanted(executor);
    const TaskExecutor present = co_await asio::this_coro::executor;
    if (present == wanted) co_return co_await std::move(task);
    auto elsewhere = asio::co_spawn(wanted, std::move(task), detail::awaitTask);
    co_return co_await std::move(elsewhere);
}

}  // namespace larkspan::support
