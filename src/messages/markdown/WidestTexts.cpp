#include "messages/markdown/WidestTexts.h"

#include <array>
#include <ranges>
#include <string_view>

#include "support/Utf8.h"

namespace larkspan::messages {

namespace {

constexpr auto widthsOfAscii = [] {
    std::array<std::size_t, 0x80> widths{};
    widths.fill(2);
    for (const char narrow : std::string_view(" !'(),-./:;I[]`fijlrt{|}"))
        widths[static_cast<unsigned char>(narrow)] = 1;
    for (const char wide : std::string_view("%@GMOQWmw")) widths[static_cast<unsigned char>(wide)] = 3;
    return widths;
}();

std::size_t roughWidth(char32_t character)
{
    // The scripts of East Asia start here, followed by the emoji.
    constexpr char32_t firstWide = 0x1100;
    if (character < widthsOfAscii.size()) return widthsOfAscii[character];
    return character < firstWide ? 2 : 4;
}

}  // namespace

std::size_t roughWidth(std::string_view text)
{
    std::size_t width = 0;
    while (!text.empty()) {
        const auto character = support::firstCharacter(text);
        width += roughWidth(character.code);
        text.remove_prefix(character.length);
    }
    return width;
}

void WidestTexts::add(const MarkdownText& text, bool isHeader)
{
    const auto width = roughWidth(text.plain);
    if (texts_.size() == most && width <= texts_.begin()->first) return;
    texts_.emplace(width, Text{.styled = text.styled, .isHeader = isHeader});
    if (texts_.size() > most) texts_.erase(texts_.begin());
}

std::vector<WidestTexts::Text> WidestTexts::texts() const
{
    std::vector<Text> found;
    found.reserve(texts_.size());
    for (const auto& [width, text] : std::views::reverse(texts_)) found.push_back(text);
    return found;
}

}  // namespace larkspan::messages
