#pragma once

#include <exception>
#include <type_traits>
#include <utility>
#include <variant>

namespace larkspan::support {

/// The outcome of an operation: its result or its exception.
template <typename T>
class Outcome {
public:
    using Value = std::conditional_t<std::is_void_v<T>, std::monostate, T>;

    static Outcome success(Value value = {}) { return Outcome(std::in_place_index<0>, std::move(value)); }
    static Outcome failure(std::exception_ptr error) { return Outcome(std::in_place_index<1>, std::move(error)); }

    /// Returns the result by moving it, or throws the exception.
    T take()
    {
        if (auto* error = std::get_if<1>(&state_)) std::rethrow_exception(*error);
        if constexpr (!std::is_void_v<T>) return std::move(*std::get_if<0>(&state_));
    }

private:
    template <std::size_t Index, typename Content>
    Outcome(std::in_place_index_t<Index> index, Content&& content)
        : state_(index, std::forward<Content>(content))
    {
    }

    std::variant<Value, std::exception_ptr> state_;
};

}  // namespace larkspan::support
