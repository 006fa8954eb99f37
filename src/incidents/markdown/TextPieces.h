#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace larkspan::incidents {

/// A text on screen costs more than its length, so no single one gets more characters than this.
inline constexpr std::size_t longestPiece = 2'000;

/// Where the pieces of `text` end, the last one at its end: behind a line end where there is one, else behind a blank,
/// else between two characters that are drawn apart. A text without characters is one piece.
std::vector<std::size_t> pieceEnds(std::string_view text);

/// Whether the two characters are drawn apart: `after` is no mark on `before`, and the two are not joined to one emoji,
/// flag or syllable.
bool areDrawnApart(char32_t before, char32_t after);

}  // namespace larkspan::incidents
