// Feeds arbitrary bytes to the markdown of messages. The result must be rows of bounded size, whose styled texts
// contain no markup but the writer's own and equal their plain texts when shown.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "messages/markdown/InlineText.h"
#include "messages/markdown/MarkdownBlock.h"
#include "messages/markdown/ShownText.h"
#include "messages/markdown/StatusMarkdownContent.h"
#include "messages/markdown/TextPieces.h"
#include "support/Utf8.h"

namespace {

using namespace larkspan;
using namespace larkspan::messages;

// A piece has this number of characters of up to four bytes; at worst each becomes a reference with its own style or
// link.
constexpr std::size_t longestPlain = longestPiece * 4;
constexpr std::size_t longestStyled = longestPiece * 100;

void require(bool holds)
{
    if (!holds) std::abort();
}

void checkRuns(std::string_view source)
{
    const auto text = inlineMarkdownText(std::string(source));
    std::size_t length = 0;
    for (const auto& run : text.runs) {
        require(run.length > 0 && (!run.link || *run.link < text.destinations.size()));
        length += run.length;
    }
    require(length == text.text.size());
    // A NUL becomes three bytes; nothing else grows.
    require(length <= source.size() * 3);

    std::string joined;
    for (const auto& piece : MarkdownText::piecesOf(text)) joined += piece.plain;
    require(joined == text.text);
}

void checkText(const MarkdownText& text, bool isSourceValid)
{
    require(text.plain.size() <= longestPlain && text.styled.size() <= longestStyled);
    const auto shown = ShownText::of(text);
    require(shown && support::isValidUtf8(text.styled));
    // Markup between two invalid bytes may have prevented them from forming a character.
    require(!isSourceValid || (support::isValidUtf8(text.plain) && *shown == ShownText::ofPlain(text.plain)));
    for (const auto& link : text.links) {
        require(!link.host.empty());
        require(link.destination.starts_with("https://") || link.destination.starts_with("http://")
            || link.destination.starts_with("mailto:"));
    }
}

void checkRows(std::string_view source)
{
    const bool isValid = support::isValidUtf8(source);
    const auto content = StatusMarkdownContent(std::string(source)).rows();
    require(content.rows.size() <= source.size() + 2);
    for (const auto& row : content.rows) {
        checkText(row.text, isValid);
        for (const auto& cell : row.cells) checkText(cell, isValid);
        require(row.cells.empty() || row.cells.size() <= content.tables.at(row.table).widestTexts.size());
        require(!row.continuesPrevious || (row.label.empty() && row.gap == 0));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view source(reinterpret_cast<const char*>(data), size);
    require(parseMarkdownBlocks(source).size() <= source.size());
    checkRuns(source);
    checkRows(source);
    return 0;
}
