#include "incidents/markdown/SourceLines.h"

#include "support/Trimming.h"
#include "support/Utf8.h"

namespace larkspan::incidents {

namespace {

/// True of nearly every byte, which then need not be read as a character.
bool beginsNoLineEnd(char byte)
{
    const auto unit = static_cast<unsigned char>(byte);
    return unit > '\r' && unit != 0xC2 && unit != 0xE2;
}

}  // namespace

std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    std::size_t begin = 0;
    for (std::size_t at = 0; at < text.size();) {
        if (beginsNoLineEnd(text[at])) {
            ++at;
            continue;
        }
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

}  // namespace larkspan::incidents
