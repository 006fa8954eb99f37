#include "support/Trimming.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

#include "support/Utf8.h"

namespace larkspan::support {

namespace {

/// Text that is copied from web pages often contains zero-width spaces.
bool isWhiteSpace(char32_t character)
{
    return isBlank(character) || isLineEnd(character) || character == U'\u200B';
}

/// Whether a line end may begin with this byte, without a branch.
constexpr std::uint8_t mayEndLine(char character)
{
    const auto byte = static_cast<std::uint8_t>(character);
    const auto fromLineFeed = static_cast<std::uint8_t>(byte - '\n');
    return (fromLineFeed <= '\r' - '\n') | (byte == 0xC2) | (byte == 0xE2);
}

constexpr std::size_t blockSize = 64;

/// Of a fixed number of bytes, so that the compiler looks at many at once.
bool anyMayEndLine(std::span<const char, blockSize> bytes)
{
    std::uint8_t may = 0;
    for (const char byte : bytes) may |= mayEndLine(byte);
    return may != 0;
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
    std::string line;
    line.reserve(text.size());
    bool isBetweenLines = false;
    const auto add = [&](std::string_view piece) {
        if (std::exchange(isBetweenLines, false)) line += ' ';
        line += piece;
    };
    while (!text.empty()) {
        auto bytes = text.substr(0, blockSize);
        if (bytes.size() == blockSize && !anyMayEndLine(std::span<const char, blockSize>(bytes))) {
            add(bytes);
            text.remove_prefix(blockSize);
            continue;
        }
        for (const auto rest = text.size() - bytes.size(); text.size() > rest;) {
            const auto character = mayEndLine(text.front()) != 0 ? firstCharacter(text) : Utf8Character{U'x', 1};
            if (isLineEnd(character.code)) {
                isBetweenLines = !line.empty();
            } else {
                add(text.substr(0, character.length));
            }
            text.remove_prefix(character.length);
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
