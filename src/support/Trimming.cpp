#include "support/Trimming.h"

#include "support/Utf8.h"

namespace larkspan::support {

namespace {

/// Text that is copied from web pages often contains zero-width spaces.
bool isWhiteSpace(char32_t character)
{
    return isBlank(character) || isLineEnd(character) || character == U'\u200B';
}

template <typename IsUnwanted>
std::string_view withoutAround(std::string_view text, IsUnwanted isUnwanted)
{
    while (!text.empty()) {
        const auto first = firstCharacter(text);
        if (!isUnwanted(first.code)) break;
        text.remove_prefix(first.length);
    }
    while (!text.empty()) {
        const auto last = lastCharacter(text);
        if (!isUnwanted(last.code)) break;
        text.remove_suffix(last.length);
    }
    return text;
}

}  // namespace

bool isBlank(char32_t character)
{
    switch (character) {
    case U' ':
    case U'\t':
    case U'\u00A0':
    case U'\u1680':
    case U'\u202F':
    case U'\u205F':
    case U'\u3000': return true;
    default: return character >= U'\u2000' && character <= U'\u200A';
    }
}

bool isLineEnd(char32_t character)
{
    return (character >= U'\n' && character <= U'\r') || character == 0x85 || character == U'\u2028'
        || character == U'\u2029';
}

std::string_view withoutBlanksAround(std::string_view text)
{
    return withoutAround(text, isBlank);
}

std::string_view trimmed(std::string_view text)
{
    return withoutAround(text, isWhiteSpace);
}

}  // namespace larkspan::support
