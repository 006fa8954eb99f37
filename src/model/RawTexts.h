#pragma once

#include <string_view>

namespace larkspan::model {

template <typename Enumeration>
struct RawText {
    std::string_view text;
    Enumeration value;
};

/// The words of an enumeration on the wire, compared exactly. A specialization holds `static constexpr RawText<E>
/// table[]`.
template <typename Enumeration>
struct RawTexts;

}  // namespace larkspan::model
