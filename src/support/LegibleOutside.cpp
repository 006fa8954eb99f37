#include "support/LegibleOutside.h"

#include "support/Utf8.h"

namespace larkspan::support {

namespace {

bool isControl(char32_t code)
{
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

bool turnsDirection(char32_t code)
{
    return code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x202A && code <= 0x202E)
        || (code >= 0x2066 && code <= 0x2069);
}

bool breaksLine(char32_t code)
{
    return code == U'\n' || code == 0x2028 || code == 0x2029;
}

}  // namespace

std::string legibleOutside(std::string_view text, Lines lines, std::size_t longest)
{
    std::string legible;
    for (std::size_t count = 0; !text.empty(); ++count) {
        if (count == longest) return legible + "…";
        const auto character = firstCharacter(text);
        text.remove_prefix(character.length);
        if (breaksLine(character.code)) {
            legible += lines == Lines::several ? '\n' : ' ';
        } else if (character.code == U'\t') {
            legible += ' ';
        } else if (!isControl(character.code) && !turnsDirection(character.code)) {
            appendCharacter(legible, character.code);
        }
    }
    return legible;
}

}  // namespace larkspan::support
