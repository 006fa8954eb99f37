#pragma once

#include <cstddef>
#include <string_view>

namespace larkspan::messages {

/// The most characters of one text on screen, whose cost grows faster than its length.
inline constexpr std::size_t longestPiece = 2'000;

/// The end of the first piece of `text`: the end of `text` if it is short enough, else after a line end, else after a
/// blank, else between two characters that are drawn apart.
std::size_t firstPieceEnd(std::string_view text);

/// Whether two adjacent characters are drawn apart: `after` is no mark on `before`, and they are not parts of one
/// emoji, flag or syllable.
bool areDrawnApart(char32_t before, char32_t after);

}  // namespace larkspan::messages
