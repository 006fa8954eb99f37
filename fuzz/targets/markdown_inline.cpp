// Inline markup: its runs cover its text, text without markup stays as it is, and no text grows.

#include <algorithm>
#include <string>

#include "Target.h"
#include "messages/markdown/InlineText.h"
#include "messages/markdown/MarkdownText.h"
#include "messages/markdown/ShownText.h"
#include "support/Utf8.h"

using namespace larkspan;
using namespace larkspan::messages;
using fuzz::require;

namespace {

void checkRuns(const InlineText& text)
{
    std::size_t length = 0;
    for (const auto& run : text.runs) {
        require(run.length > 0, "no run is empty");
        require(!run.link || *run.link < text.destinations.size(), "a run's link is one of the text");
        length += run.length;
    }
    require(length == text.text.size(), "runs cover their text");
    const auto areAlike = [](const InlineRun& one, const InlineRun& other) {
        return one.styles == other.styles && one.link == other.link;
    };
    require(std::ranges::adjacent_find(text.runs, areAlike) == text.runs.end(), "neighbouring runs differ");
}

void checkPieces(const InlineText& text, bool isValid)
{
    std::string joined;
    for (const auto& piece : MarkdownText::piecesOf(text)) {
        joined += piece.plain;
        const auto shown = ShownText::of(piece);
        require(shown && support::isValidUtf8(piece.styled), "styled text has the writer's markup only");
        require(!isValid || *shown == ShownText::ofPlain(piece.plain), "what is shown is what is said");
    }
    require(joined == text.text, "pieces are the whole text");
}

}  // namespace

FUZZ_TARGET(markdown_inline, input)
{
    const bool isValid = support::isValidUtf8(input);
    const auto text = inlineMarkdownText(std::string(input));
    checkRuns(text);
    checkPieces(text, isValid);
    require(!isValid || support::isValidUtf8(text.text), "text stays valid text");
    // A NUL becomes three bytes; nothing else grows.
    require(text.text.size() <= input.size() * 3, "text without its markup is shorter");
    const std::string_view markup("*_~`[]()<>\\&!\0", 14);
    if (input.find_first_of(markup) != std::string_view::npos) return;
    require(text.text == input && text.runs.size() <= 1, "text without markup is not changed");
}
