#pragma once

#include <memory>
#include <type_traits>
#include <utility>

namespace larkspan::support {

/// A callable that is moved, never copied, as std::move_only_function in C++23. An empty one must not be called.
template <typename Signature>
class UniqueFunction;

template <typename Result, typename... Arguments>
class UniqueFunction<Result(Arguments...)> {
    template <typename Callable>
    static constexpr bool isAnother = std::is_same_v<std::remove_cvref_t<Callable>, UniqueFunction>;
    template <typename Callable>
    static constexpr bool canHold = std::is_invocable_r_v<Result, std::decay_t<Callable>&, Arguments...>;

public:
    UniqueFunction() = default;

    template <typename Callable>
        requires(!isAnother<Callable> && canHold<Callable>)
    UniqueFunction(Callable&& callable)
        : target_(std::make_unique<Holder<std::decay_t<Callable>>>(std::forward<Callable>(callable)))
    {
    }

    explicit operator bool() const { return target_ != nullptr; }

    Result operator()(Arguments... arguments) { return target_->call(std::forward<Arguments>(arguments)...); }

private:
    struct Target {
        virtual ~Target() = default;
        virtual Result call(Arguments... arguments) = 0;
    };

    template <typename Callable>
    struct Holder final : Target {
        template <typename From>
        explicit Holder(From&& from)
            : callable(std::forward<From>(from))
        {
        }
        Result call(Arguments... arguments) override { return callable(std::forward<Arguments>(arguments)...); }
        Callable callable;
    };

    std::unique_ptr<Target> target_;
};

}  // namespace larkspan::support
