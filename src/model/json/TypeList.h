#pragma once

#include <concepts>

namespace larkspan::model {

/// Types as a value, to go through or to look one up in.
template <typename... Types>
struct TypeList {
    template <typename Type>
    static constexpr bool holds = (std::same_as<Type, Types> || ...);
};

}  // namespace larkspan::model
