#pragma once

#include <cstddef>
#include <string_view>

namespace larkspan::incidents {

/// A text on screen costs more than its length, so no single one gets more characters than this.
inline constexpr std::size_t longestPiece = 2'000;

/// Where the first piece of `text` ends: at its own end if it is short enough, else behind a line end where there is
/// one, else behind a blank, else between two characters that are drawn apart.
std::size_t firstPieceEnd(std::string_view text);

/// Whether the two characters are drawn apart: `after` is no mark on `before`, and the two are not joined to one emoji,
/// flag or syllable.
bool areDrawnApart(char32_t before, char32_t after);

}  // namespace larkspan::incidents
