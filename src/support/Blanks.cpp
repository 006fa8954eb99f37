#include "support/Blanks.h"

#include "support/Utf8.h"

namespace larkspan::support {

namespace {

/// True of nearly every byte, which then need not be read as a character.
bool beginsNoLineEnd(char byte)
{
    const auto unit = static_cast<unsigned char>(byte);
    return unit > '\r' && unit != 0xC2 && unit != 0xE2;
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
    while (!text.empty()) {
        const auto first = firstCharacter(text);
        if (!isBlank(first.code)) break;
        text.remove_prefix(first.length);
    }
    while (!text.empty()) {
        const auto last = lastCharacter(text);
        if (!isBlank(last.code)) break;
        text.remove_suffix(last.length);
    }
    return text;
}

std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    std::size_t begin = 0;
    for (std::size_t at = 0; at < text.size();) {
        if (beginsNoLineEnd(text[at])) {
            ++at;
            continue;
        }
        const auto character = firstCharacter(text.substr(at));
        if (!isLineEnd(character.code)) {
            at += character.length;
            continue;
        }
        lines.push_back(text.substr(begin, at - begin));
        at += text.substr(at, 2) == "\r\n" ? 2 : character.length;
        begin = at;
    }
    lines.push_back(text.substr(begin));
    return lines;
}

}  // namespace larkspan::support
