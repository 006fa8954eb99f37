#pragma once

#include <asio/async_result.hpp>

#include <utility>

#include "support/Outcome.h"
#include "support/Task.h"

namespace larkspan::support {

/// The pending answer of an awaited callback. Give it once, on any thread; the awaiter resumes where it awaited.
/// Destroyed without an answer, it unwinds the awaiting task on that task's executor.
template <typename T>
class Completion {
public:
    explicit Completion(UniqueFunction<void(Outcome<T>)> resume)
        : resume_(std::move(resume))
    {
    }

    void give(Outcome<T> outcome) { std::exchange(resume_, {})(std::move(outcome)); }

private:
    UniqueFunction<void(Outcome<T>)> resume_;
};

/// Calls `begin` with a `Completion<T>` and awaits the answer.
template <typename T, typename Begin>
Task<T> completion(Begin begin)
{
    auto initiate = [begin = std::move(begin)](auto handler) mutable {
        const auto executor = asio::get_associated_executor(handler);
        UniqueFunction<void(Outcome<T>)> resume = [executor, handler = std::move(handler)](Outcome<T> outcome) mutable {
            executor.execute([handler = std::move(handler), outcome = std::move(outcome)]() mutable {
                std::move(handler)(std::move(outcome));
            });
        };
        begin(Completion<T>(std::move(resume)));
    };
    auto answer
        = asio::async_initiate<decltype(detail::awaitTask), void(Outcome<T>)>(std::move(initiate), detail::awaitTask);
    Outcome<T> outcome = co_await std::move(answer);
    co_return outcome.take();
}

}  // namespace larkspan::support
