#pragma once

#include <concepts>

namespace larkspan::model {

/// A list of types, to iterate over or to search.
template <typename... Types>
struct TypeList {
    template <typename Type>
    static constexpr bool holds = (std::same_as<Type, Types> || ...);
};

}  // namespace larkspan::model
