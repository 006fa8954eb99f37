#include "messages/markdown/TextPieces.h"

#include <algorithm>

#include "messages/markdown/CharacterTables.h"
#include "support/Trimming.h"
#include "support/Utf8.h"

namespace larkspan::messages {

namespace {

constexpr char32_t zeroWidthJoiner = U'\u200D';

bool isJoining(char32_t character)
{
    const auto ranges = joiningCharacters();
    if (character < ranges.front().first) return false;
    const auto range = std::ranges::lower_bound(ranges, character, {}, &CharacterRange::last);
    return range != ranges.end() && character >= range->first;
}

bool isHalfOfAFlag(char32_t character)
{
    return character >= U'\U0001F1E6' && character <= U'\U0001F1FF';
}

}  // namespace

bool areDrawnApart(char32_t before, char32_t after)
{
    return before != zeroWidthJoiner && !isJoining(after) && !(isHalfOfAFlag(before) && isHalfOfAFlag(after));
}

std::size_t firstPieceEnd(std::string_view text)
{
    // No text has more characters than bytes, so most texts need not be searched.
    if (text.size() <= longestPiece) return text.size();

    std::size_t behindLineEnd = 0;
    std::size_t behindBlank = 0;
    std::size_t betweenCharacters = 0;
    std::size_t at = 0;
    char32_t before = 0;
    for (std::size_t count = 0; at < text.size(); ++count) {
        const auto character = support::firstCharacter(text.substr(at));
        if (at > 0 && areDrawnApart(before, character.code)) {
            betweenCharacters = at;
            if (support::isLineEnd(before)) behindLineEnd = at;
            if (support::isBlank(before)) behindBlank = at;
        }
        if (count == longestPiece) break;
        at += character.length;
        before = character.code;
    }
    if (at == text.size()) return at;
    for (const auto end : {behindLineEnd, behindBlank, betweenCharacters}) {
        if (end > 0) return end;
    }
    return at;
}

}  // namespace larkspan::messages
