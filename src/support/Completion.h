#pragma once

#include <asio/async_result.hpp>

#include <utility>

#include "support/Outcome.h"
#include "support/Task.h"

namespace larkspan::support {

/// The pending answer of an awaited callback. Give it once; the awaiter resumes where it awaited. Destroyed without an
/// answer, it unwinds the awaiting task on that task's executor.
template <typename T>
class Completion {
public:
    using Resume = UniqueFunction<void(Outcome<T>)>;

    /// `resume` goes on with the awaiting task, which runs on `awaiter`.
    Completion(TaskExecutor awaiter, Resume resume)
        : awaiter_(awaiter)
        , resume_(std::move(resume))
    {
    }

    /// From any thread; the awaiter goes on in a turn of its own.
    void give(Outcome<T> outcome)
    {
        awaiter_.execute([resume = std::exchange(resume_, {}), outcome = std::move(outcome)]() mutable {
            resume(std::move(outcome));
        });
    }

    /// From a later turn of the awaiter's executor; the awaiter goes on within this call.
    void giveInThisTurn(Outcome<T> outcome) { std::exchange(resume_, {})(std::move(outcome)); }

private:
    TaskExecutor awaiter_;
    Resume resume_;
};

/// Calls `begin` with a `Completion<T>` and awaits the answer.
template <typename T, typename Begin>
Task<T> completion(Begin begin)
{
    auto initiate = [begin = std::move(begin)](auto handler) mutable {
        const auto awaiter = asio::get_associated_executor(handler);
        auto resume
            = [handler = std::move(handler)](Outcome<T> outcome) mutable { std::move(handler)(std::move(outcome)); };
        begin(Completion<T>(awaiter, std::move(resume)));
    };
    auto answer
        = asio::async_initiate<decltype(detail::awaitTask), void(Outcome<T>)>(std::move(initiate), detail::awaitTask);
    Outcome<T> outcome = co_await std::move(answer);
    co_return outcome.take();
}

}  // namespace larkspan::support
