#include "support/Trimming.h"

#include <cstddef>
#include <utility>

#include "support/Utf8.h"

namespace larkspan::support {

namespace {

/// Text that is copied from web pages often contains zero-width spaces.
bool isWhiteSpace(char32_t character)
{
    return isBlank(character) || isLineEnd(character) || character == U'\u200B';
}

/// Whether a line end may begin with this byte.
constexpr bool mayEndLine(char byte)
{
    return (byte >= '\n' && byte <= '\r') || byte == '\xC2' || byte == '\xE2';
}

/// Without a branch, for all bytes at once.
bool anyMayEndLine(std::string_view bytes)
{
    bool may = false;
    for (const char byte : bytes) may |= mayEndLine(byte);
    return may;
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

std::string inOneLine(std::string_view text)
{
    constexpr std::size_t atOnce = 64;

    std::string line;
    line.reserve(text.size());
    bool isBetweenLines = false;
    const auto add = [&](std::string_view piece) {
        if (std::exchange(isBetweenLines, false)) line += ' ';
        line += piece;
    };
    for (std::size_t at = 0; at < text.size();) {
        const auto bytes = text.substr(at, atOnce);
        if (!anyMayEndLine(bytes)) {
            add(bytes);
            at += bytes.size();
            continue;
        }
        for (const auto end = at + bytes.size(); at < end;) {
            const auto character = mayEndLine(text[at]) ? firstCharacter(text.substr(at)) : Utf8Character{U'x', 1};
            if (isLineEnd(character.code)) {
                isBetweenLines = !line.empty();
            } else {
                add(text.substr(at, character.length));
            }
            at += character.length;
        }
    }
    return line;
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
