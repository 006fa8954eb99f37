#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>
#include <tuple>
#include <type_traits>
#include <utility>

namespace larkspan::fakes {

/// Converts to any field, to count fields.
struct AnyField {
    template <typename T>
    operator T() const;
};

template <typename T, std::size_t... Index>
constexpr bool hasFields(std::index_sequence<Index...>)
{
    return requires { T{(static_cast<void>(Index), AnyField{})...}; };
}

template <typename T, std::size_t most = 13>
constexpr std::size_t fieldCount()
{
    if constexpr (most == 0 || hasFields<T>(std::make_index_sequence<most>{}))
        return most;
    else
        return fieldCount<T, most - 1>();
}

template <typename T>
auto fieldsOf(const T& row)
{
    constexpr auto count = fieldCount<T>();
    if constexpr (count == 1) {
        const auto& [a] = row;
        return std::tie(a);
    } else if constexpr (count == 2) {
        const auto& [a, b] = row;
        return std::tie(a, b);
    } else if constexpr (count == 3) {
        const auto& [a, b, c] = row;
        return std::tie(a, b, c);
    } else if constexpr (count == 4) {
        const auto& [a, b, c, d] = row;
        return std::tie(a, b, c, d);
    } else if constexpr (count == 5) {
        const auto& [a, b, c, d, e] = row;
        return std::tie(a, b, c, d, e);
    } else if constexpr (count == 6) {
        const auto& [a, b, c, d, e, f] = row;
        return std::tie(a, b, c, d, e, f);
    } else if constexpr (count == 7) {
        const auto& [a, b, c, d, e, f, g] = row;
        return std::tie(a, b, c, d, e, f, g);
    } else if constexpr (count == 8) {
        const auto& [a, b, c, d, e, f, g, h] = row;
        return std::tie(a, b, c, d, e, f, g, h);
    } else if constexpr (count == 9) {
        const auto& [a, b, c, d, e, f, g, h, i] = row;
        return std::tie(a, b, c, d, e, f, g, h, i);
    } else if constexpr (count == 10) {
        const auto& [a, b, c, d, e, f, g, h, i, j] = row;
        return std::tie(a, b, c, d, e, f, g, h, i, j);
    } else if constexpr (count == 12) {
        const auto& [a, b, c, d, e, f, g, h, i, j, k, l] = row;
        return std::tie(a, b, c, d, e, f, g, h, i, j, k, l);
    } else {
        static_assert(count == 11, "give rows of more fields their case here");
        const auto& [a, b, c, d, e, f, g, h, i, j, k] = row;
        return std::tie(a, b, c, d, e, f, g, h, i, j, k);
    }
}

template <typename T>
concept Row = std::is_aggregate_v<T> && std::is_class_v<T>;

/// Prints a row in a failed test field by field, instead of as bytes.
template <Row T>
void PrintTo(const T& row, std::ostream* out)
{
    *out << '{';
    const char* separator = "";
    const auto print = [&]<typename Field>(const Field& field) {
        *out << std::exchange(separator, ", ");
        if constexpr (std::is_enum_v<Field>)
            *out << static_cast<std::underlying_type_t<Field>>(field);
        else
            testing::internal::UniversalPrint(field, out);
    };
    std::apply([&](const auto&... fields) { (print(fields), ...); }, fieldsOf(row));
    *out << '}';
}

}  // namespace larkspan::fakes

// Printers are found in the namespace of the row.

namespace larkspan::presentation {
using fakes::PrintTo;
}  // namespace larkspan::presentation

namespace larkspan::incidents {
using fakes::PrintTo;
}  // namespace larkspan::incidents

namespace larkspan::monitors {
using fakes::PrintTo;
}  // namespace larkspan::monitors

namespace larkspan::components {
using fakes::PrintTo;
}  // namespace larkspan::components

namespace larkspan::maintenances {
using fakes::PrintTo;
}  // namespace larkspan::maintenances

namespace larkspan::workspace {
using fakes::PrintTo;
}  // namespace larkspan::workspace

namespace larkspan::bridge {
using fakes::PrintTo;
}  // namespace larkspan::bridge
