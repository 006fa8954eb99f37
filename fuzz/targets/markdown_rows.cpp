// The rows of messages, of bounded size, whose styled texts contain no markup but the writer's own and equal their
// plain texts when shown.

#include <string>
#include <string_view>

#include "Target.h"
#include "messages/markdown/ShownText.h"
#include "messages/markdown/StatusMarkdownContent.h"
#include "messages/markdown/TextPieces.h"
#include "support/Utf8.h"

using namespace larkspan;
using namespace larkspan::messages;
using fuzz::require;

namespace {

// A piece has this number of characters of up to four bytes; at worst each becomes a reference with its own style or
// link.
constexpr std::size_t longestPlain = longestPiece * 4;
constexpr std::size_t longestStyled = longestPiece * 100;

void checkText(const MarkdownText& text, bool isSourceValid)
{
    require(text.plain.size() <= longestPlain && text.styled.size() <= longestStyled, "a text has a bounded size");
    const auto shown = ShownText::of(text);
    require(shown && support::isValidUtf8(text.styled), "styled text has the writer's markup only");
    // Markup between two invalid bytes may have prevented them from forming a character.
    require(!isSourceValid || (support::isValidUtf8(text.plain) && *shown == ShownText::ofPlain(text.plain)),
        "what is shown is what is said");
    for (const auto& link : text.links) {
        require(!link.host.empty(), "a link has a host");
        require(link.destination.starts_with("https://") || link.destination.starts_with("http://")
                || link.destination.starts_with("mailto:"),
            "only pages and mail are opened");
    }
}

}  // namespace

FUZZ_TARGET(markdown_rows, input)
{
    const bool isValid = support::isValidUtf8(input);
    const auto content = StatusMarkdownContent(std::string(input)).rows();
    require(content.rows.size() <= input.size() + 2, "a message has a row for each of its bytes at most");
    for (const auto& row : content.rows) {
        checkText(row.text, isValid);
        for (const auto& cell : row.cells) checkText(cell, isValid);
        require(row.cells.empty() || row.cells.size() <= content.tables.at(row.table).widestTexts.size(),
            "each cell has a column");
        require(!row.continuesPrevious || (row.label.empty() && row.gap == 0), "a continued text is one");
    }
}
