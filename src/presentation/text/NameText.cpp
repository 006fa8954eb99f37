#include "presentation/text/NameText.h"

#include <algorithm>
#include <array>
#include <utility>

#include "presentation/text/InPart.h"
#include "support/Trimming.h"
#include "support/Utf8.h"

namespace larkspan::presentation {

namespace {

using CodeRange = std::pair<char32_t, char32_t>;

/// Characters that are drawn as nothing although they are no blanks: controls, joiners, marks of direction, selectors
/// of variants, fillers and tags.
constexpr std::array<CodeRange, 16> invisible{{{0x00, 0x1F}, {0x7F, 0x9F}, {0xAD, 0xAD}, {0x34F, 0x34F}, {0x61C, 0x61C},
    {0x115F, 0x1160}, {0x17B4, 0x17B5}, {0x180B, 0x180F}, {0x200B, 0x200F}, {0x202A, 0x202E}, {0x2060, 0x206F},
    {0x2800, 0x2800}, {0x3164, 0x3164}, {0xFE00, 0xFE0F}, {0xFEFF, 0xFEFF}, {0xFFA0, 0xFFA0}}};
constexpr CodeRange tags{0xE0000, 0xE0FFF};

/// In bytes: what begins with more characters that are drawn as nothing is no name that anybody gave.
constexpr std::size_t mostBeforeAName = 1'000;

bool isWithin(CodeRange range, char32_t code)
{
    return range.first <= code && code <= range.second;
}

bool isVisible(char32_t code)
{
    return !support::isBlank(code) && !support::isLineEnd(code) && !isWithin(tags, code)
        && std::ranges::none_of(invisible, [code](CodeRange range) { return isWithin(range, code); });
}

bool hasVisibleCharacter(std::string_view text)
{
    while (!text.empty()) {
        const auto character = support::firstCharacter(text);
        if (isVisible(character.code)) return true;
        text.remove_prefix(character.length);
    }
    return false;
}

}  // namespace

std::string nameText(std::string_view name, std::size_t most)
{
    if (!hasVisibleCharacter(support::beginningOf(name, mostBeforeAName))) return "Unnamed";
    if (name.size() <= most) return support::inOneLine(name);
    return support::inOneLine(support::beginningOf(name, most)) + "…";
}

std::string rowTitle(std::string_view name)
{
    return nameText(name, mostOfARowsTitle);
}

}  // namespace larkspan::presentation
