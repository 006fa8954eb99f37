#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <utility>

#include "model/json/WireField.h"

namespace larkspan::model {

template <typename Record, int line>
concept HasFieldAt = requires { Record::template rowAt<Record>(Line<line>{}); };

template <typename Record, int... line>
constexpr auto fieldLinesAmong(std::integer_sequence<int, line...>)
{
    constexpr std::array<bool, sizeof...(line)> isField{HasFieldAt<Record, line>...};
    std::array<int, std::ranges::count(isField, true)> lines{};
    for (std::size_t at = 0, found = 0; at < isField.size(); ++at) {
        if (isField[at]) lines[found++] = static_cast<int>(at);
    }
    return lines;
}

template <typename Record>
inline constexpr auto fieldLines = fieldLinesAmong<Record>(std::make_integer_sequence<int, lastLine + 1>{});

template <typename Record, std::size_t... at>
constexpr auto fieldRows(std::index_sequence<at...>)
{
    if constexpr (sizeof...(at) == 0)
        return std::tuple{};
    else
        return std::tuple{Record::template rowAt<Record>(Line<fieldLines<Record>[at]> {})...};
}

template <typename Record>
constexpr auto rowsOf()
{
    constexpr auto rows = fieldRows<Record>(std::make_index_sequence<fieldLines<Record>.size()>{});
    if constexpr (requires { Record::derivations; })
        return std::tuple_cat(rows, Record::derivations);
    else
        return rows;
}

/// The wire side of a record: a row for each of its fields, in the order in which they are declared, read and written,
/// then one for each of its `derivations`.
template <typename Record>
inline constexpr auto wireRows = rowsOf<Record>();

/// The key names of `wireRows`.
template <typename Record>
inline constexpr auto keyNames = std::apply(
    [](const auto&... rows) { return std::array<std::string_view, sizeof...(rows)>{rows.key...}; }, wireRows<Record>);

template <typename Type>
concept HasWireFields = !fieldLines<Type>.empty();

}  // namespace larkspan::model
