#pragma once

#include <string_view>

namespace larkspan::model {

template <typename Enumeration>
struct RawText {
    std::string_view text;
    Enumeration value;
};

/// The words of an enumeration, compared exactly where they come from the wire. A specialization holds
/// `static constexpr RawText<E> table[]` with a row for each value.
template <typename Enumeration>
struct RawTexts;

/// The word for `value`.
template <typename Enumeration>
constexpr std::string_view rawText(Enumeration value)
    requires requires { RawTexts<Enumeration>::table; }
{
    for (const auto& row : RawTexts<Enumeration>::table) {
        if (row.value == value) return row.text;
    }
    return {};
}

}  // namespace larkspan::model
