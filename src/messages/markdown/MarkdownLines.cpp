#include "messages/markdown/MarkdownLines.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "support/Trimming.h"

namespace larkspan::messages {

namespace {

bool isWholeNumber(std::string_view text)
{
    // from_chars accepts a minus, but no plus.
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) return false;
    }
    std::int64_t number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && stop == text.data() + text.size();
}

}  // namespace

std::optional<HeadingLine> parseHeadingLine(std::string_view trimmedLine)
{
    const auto level = std::min(trimmedLine.find_first_not_of('#'), trimmedLine.size());
    if (level < 1 || level > 6) return std::nullopt;
    const auto rest = trimmedLine.substr(level);
    if (!rest.starts_with(' ')) return std::nullopt;
    return HeadingLine{static_cast<int>(level), support::withoutBlanksAround(rest.substr(1))};
}

std::optional<std::string_view> parseUnorderedItem(std::string_view trimmedLine)
{
    for (const auto marker : unorderedMarkers) {
        if (trimmedLine.starts_with(marker)) return trimmedLine.substr(marker.size());
    }
    return std::nullopt;
}

std::optional<std::string_view> parseOrderedItem(std::string_view trimmedLine)
{
    const auto dot = trimmedLine.find('.');
    if (dot == std::string_view::npos || !isWholeNumber(trimmedLine.substr(0, dot))) return std::nullopt;
    const auto rest = trimmedLine.substr(dot + 1);
    if (!rest.starts_with(' ')) return std::nullopt;
    return rest.substr(1);
}

}  // namespace larkspan::messages
