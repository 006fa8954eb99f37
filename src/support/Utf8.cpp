#include "support/Utf8.h"

#include <simdjson.h>

#include <algorithm>
#include <cstdint>

namespace larkspan::support {

namespace {

constexpr Utf8Character illFormed{U'\uFFFD', 1};

struct LeadByte {
    std::size_t continuations;
    std::uint32_t bits;
    std::uint32_t smallest;
};

constexpr LeadByte invalidLead{0, 0, 1};

constexpr LeadByte readLead(std::uint8_t byte)
{
    if (byte < 0x80) return {0, byte, 0};
    if (byte >> 5 == 0b110) return {1, byte & 0x1Fu, 0x80};
    if (byte >> 4 == 0b1110) return {2, byte & 0x0Fu, 0x800};
    if (byte >> 3 == 0b11110) return {3, byte & 0x07u, 0x1'0000};
    return invalidLead;
}

constexpr bool isContinuation(char byte)
{
    return static_cast<std::uint8_t>(byte) >> 6 == 0b10;
}

constexpr bool isScalarValue(std::uint32_t code)
{
    return code <= 0x10'FFFF && (code < 0xD800 || code > 0xDFFF);
}

constexpr char byteOf(std::uint32_t bits)
{
    return static_cast<char>(static_cast<std::uint8_t>(bits));
}

}  // namespace

Utf8Character firstCharacter(std::string_view bytes)
{
    auto [continuations, code, smallest] = readLead(static_cast<std::uint8_t>(bytes.front()));
    if (bytes.size() <= continuations) return illFormed;
    for (std::size_t at = 1; at <= continuations; ++at) {
        if (!isContinuation(bytes[at])) return illFormed;
        code = code << 6 | (static_cast<std::uint8_t>(bytes[at]) & 0x3Fu);
    }
    if (code < smallest || !isScalarValue(code)) return illFormed;
    return {code, continuations + 1};
}

Utf8Character lastCharacter(std::string_view bytes)
{
    const auto furthest = std::min<std::size_t>(bytes.size(), 4);
    for (std::size_t length = 1; length <= furthest; ++length) {
        if (isContinuation(bytes[bytes.size() - length])) continue;
        const auto character = firstCharacter(bytes.substr(bytes.size() - length));
        return character.length == length ? character : illFormed;
    }
    return illFormed;
}

bool isValidUtf8(std::string_view bytes)
{
    return simdjson::validate_utf8(bytes);
}

std::string_view beginningOf(std::string_view text, std::size_t most)
{
    if (text.size() <= most) return text;
    const auto isContinuation = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0u) == 0x80u; };
    while (most > 0 && isContinuation(text[most])) --most;
    return text.substr(0, most);
}

std::size_t bytesOf(std::string_view text, std::size_t characters)
{
    std::size_t begun = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (!isContinuation(text[at]) && ++begun > characters) return at;
    }
    return text.size();
}

void appendCharacter(std::string& text, char32_t code)
{
    const std::uint32_t bits = isScalarValue(code) ? code : U'\uFFFD';
    if (bits < 0x80) {
        text += byteOf(bits);
    } else if (bits < 0x800) {
        text += {byteOf(0xC0 | bits >> 6), byteOf(0x80 | (bits & 0x3F))};
    } else if (bits < 0x1'0000) {
        text += {byteOf(0xE0 | bits >> 12), byteOf(0x80 | (bits >> 6 & 0x3F)), byteOf(0x80 | (bits & 0x3F))};
    } else {
        text += {byteOf(0xF0 | bits >> 18), byteOf(0x80 | (bits >> 12 & 0x3F)), byteOf(0x80 | (bits >> 6 & 0x3F)),
            byteOf(0x80 | (bits & 0x3F))};
    }
}

}  // namespace larkspan::support
