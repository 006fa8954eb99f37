#include "support/Capitalized.h"

#include <algorithm>
#include <array>

#include "support/Utf8.h"

namespace larkspan::support {

namespace {

/// Upper-case letters whose lower-case ones are `distance` further on; if the distance is one, the two alternate.
struct LetterRange {
    char32_t first;
    char32_t last;
    char32_t distance;

    constexpr bool holdsLarge(char32_t code) const
    {
        return code >= first && code <= last && (distance > 1 || (code - first) % 2 == 0);
    }
};

// The standard library's mapping depends on the locale of the process, which is unrelated to the service's words.
constexpr std::array alphabets{
    LetterRange{U'A', U'Z', 32}, LetterRange{0x00C0, 0x00D6, 32},  // Latin: À to Ö
    LetterRange{0x00D8, 0x00DE, 32},  // Ø to Þ
    LetterRange{0x0100, 0x012E, 1},  // Ā to Į
    LetterRange{0x0132, 0x0136, 1},  // Ĳ to Ķ
    LetterRange{0x0139, 0x0147, 1},  // Ĺ to Ň
    LetterRange{0x014A, 0x0176, 1},  // Ŋ to Ŷ
    LetterRange{0x0179, 0x017D, 1},  // Ź to Ž
    LetterRange{0x01A0, 0x01A0, 1},  // Ơ
    LetterRange{0x01AF, 0x01AF, 1},  // Ư
    LetterRange{0x01CD, 0x01DB, 1},  // Ǎ to Ǜ
    LetterRange{0x01DE, 0x01EE, 1},  // Ǟ to Ǯ
    LetterRange{0x01F8, 0x021E, 1},  // Ǹ to Ȟ
    LetterRange{0x0222, 0x0232, 1},  // Ȣ to Ȳ
    LetterRange{0x0388, 0x038A, 37},  // Greek: Έ to Ί
    LetterRange{0x0386, 0x0386, 38},  // Ά
    LetterRange{0x038C, 0x038C, 64},  // Ό
    LetterRange{0x038E, 0x038F, 63},  // Ύ and Ώ
    LetterRange{0x0391, 0x03A1, 32},  // Α to Ρ
    LetterRange{0x03A3, 0x03AB, 32},  // Σ to Ϋ
    LetterRange{0x0400, 0x040F, 80},  // Cyrillic: Ѐ to Џ
    LetterRange{0x0410, 0x042F, 32},  // А to Я
    LetterRange{0x048A, 0x04BE, 1},  // Ҋ to Ҿ
    LetterRange{0x04C1, 0x04CD, 1},  // Ӂ to Ӎ
    LetterRange{0x04D0, 0x052E, 1},  // Ӑ to Ԯ
    LetterRange{0x0531, 0x0556, 48},  // Armenian: Ա to Ֆ
    LetterRange{0x1E00, 0x1E94, 1},  // Latin again: Ḁ to Ẕ
    LetterRange{0x1EA0, 0x1EFE, 1},  // Ạ to Ỿ
};

char32_t large(char32_t code)
{
    const auto range
        = std::ranges::find_if(alphabets, [code](auto each) { return each.holdsLarge(code - each.distance); });
    return range == alphabets.end() ? code : code - range->distance;
}

char32_t small(char32_t code)
{
    const auto range = std::ranges::find_if(alphabets, [code](auto each) { return each.holdsLarge(code); });
    return range == alphabets.end() ? code : code + range->distance;
}

bool isApostrophe(char32_t code)
{
    return code == U'\'' || code == U'\u2019';
}

bool isPartOfWord(char32_t code)
{
    if (code < 0x80) return (code >= U'0' && code <= U'9') || small(large(code)) != large(code);
    const bool isLatinSign = code < 0xC0 && code != U'ª' && code != U'µ' && code != U'º';
    const bool isPunctuation = (code >= 0x2000 && code < 0x2070) || (code >= 0x3000 && code < 0x3004);
    return !isLatinSign && !isPunctuation && code != U'×' && code != U'÷';
}

}  // namespace

std::string capitalized(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    bool isInWord = false;
    while (!text.empty()) {
        const auto character = firstCharacter(text);
        if (character.isWellFormed())
            appendCharacter(result, isInWord ? small(character.code) : large(character.code));
        else
            result += text.front();
        isInWord = isPartOfWord(character.code) || (isInWord && isApostrophe(character.code));
        text.remove_prefix(character.length);
    }
    return result;
}

}  // namespace larkspan::support
