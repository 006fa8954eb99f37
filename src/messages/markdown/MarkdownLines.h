#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace larkspan::messages {

/// With the blank that belongs to each marker.
inline constexpr std::array<std::string_view, 3> unorderedMarkers{"- ", "* ", "+ "};

struct HeadingLine {
    int level;
    std::string_view text;

    bool operator==(const HeadingLine&) const = default;
};

/// One to six "#", a blank and a text.
std::optional<HeadingLine> parseHeadingLine(std::string_view trimmedLine);

/// The text after one of `unorderedMarkers`.
std::optional<std::string_view> parseUnorderedItem(std::string_view trimmedLine);

/// The text after an integer, a dot and a blank.
std::optional<std::string_view> parseOrderedItem(std::string_view trimmedLine);

}  // namespace larkspan::messages
