#include "messages/markdown/SourceLines.h"

#include <algorithm>
#include <array>

#include "support/Trimming.h"
#include "support/Utf8.h"

namespace larkspan::messages {

namespace {

/// The bytes with which a line end starts.
constexpr auto suspects = [] {
    std::array<bool, 256> begins{};
    for (std::size_t byte = '\n'; byte <= '\r'; ++byte) begins[byte] = true;
    begins[0xC2] = begins[0xE2] = true;
    return begins;
}();

std::size_t placeOfSuspect(std::string_view text, std::size_t from)
{
    const auto found = std::find_if(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(),
        [](char byte) { return suspects[static_cast<unsigned char>(byte)]; });
    return static_cast<std::size_t>(found - text.begin());
}

}  // namespace

std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    std::size_t begin = 0;
    for (std::size_t at = 0; (at = placeOfSuspect(text, at)) < text.size();) {
        const auto character = support::firstCharacter(text.substr(at));
        if (!support::isLineEnd(character.code)) {
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

}  // namespace larkspan::messages
