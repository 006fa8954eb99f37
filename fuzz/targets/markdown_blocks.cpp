// The blocks of a message: nothing is invented, and what was read as blocks reads again as the same ones.

#include <algorithm>
#include <string>
#include <variant>

#include "Target.h"
#include "messages/markdown/MarkdownBlock.h"
#include "support/Trimming.h"
#include "support/Utf8.h"

using namespace larkspan;
using namespace larkspan::messages;
using fuzz::require;

namespace {

bool isOneLine(std::string_view text)
{
    while (!text.empty()) {
        const auto character = support::firstCharacter(text);
        if (support::isLineEnd(character.code)) return false;
        text.remove_prefix(character.length);
    }
    return true;
}

bool isTrimmed(std::string_view text)
{
    return support::withoutBlanksAround(text) == text;
}

/// Checks the texts of a block, adds them up, and writes the block as a source.
class Block {
public:
    void operator()(const MarkdownHeading& heading)
    {
        require(heading.level >= 1 && heading.level <= 6, "a heading has one of six levels");
        require(!heading.text.empty() && isTrimmed(heading.text), "a heading is trimmed");
        add(std::string(static_cast<std::size_t>(heading.level), '#') + ' ', heading.text);
    }

    void operator()(const MarkdownParagraph& paragraph)
    {
        require(!support::withoutBlanksAround(paragraph.text).empty(), "a paragraph says something");
        text += paragraph.text.size();
        source += paragraph.text + '\n';
    }

    void operator()(const MarkdownUnorderedList& list) { addItems("* ", list.items); }
    void operator()(const MarkdownOrderedList& list) { addItems("7. ", list.items); }

    void operator()(const MarkdownQuote& quote)
    {
        require(isTrimmed(quote.text), "a quote is trimmed");
        add("> ", quote.text);
    }

    void operator()(const MarkdownTable& table)
    {
        addRow(table.headers);
        source += "---\n";
        for (const auto& row : table.rows) addRow(row);
    }

    std::size_t text = 0;
    std::string source;

private:
    void add(std::string_view mark, const std::string& line)
    {
        require(isOneLine(line), "a line is one");
        text += line.size();
        source.append(mark).append(line).append("\n");
    }

    void addItems(std::string_view mark, const std::vector<std::string>& items)
    {
        require(!items.empty(), "a list has an item");
        for (const auto& item : items) {
            require(!support::withoutBlanksAround(item).empty(), "an item says something");
            add(mark, item);
        }
    }

    void addRow(const std::vector<std::string>& cells)
    {
        require(!cells.empty(), "a row has a cell");
        for (const auto& cell : cells) {
            require(isTrimmed(cell) && cell.find('|') == std::string::npos, "a cell ends at its pipe");
            require(isOneLine(cell), "a line is one");
            text += cell.size();
            source += "| " + cell + ' ';
        }
        source += "|\n";
    }
};

std::string withLineFeeds(std::string text)
{
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\r' && (at + 1 == text.size() || text[at + 1] != '\n')) plain += '\n';
        if (text[at] != '\r') plain += text[at];
    }
    return plain;
}

}  // namespace

FUZZ_TARGET(markdown_blocks, input)
{
    const auto blocks = parseMarkdownBlocks(input);
    std::size_t text = 0;
    std::string source;
    for (const auto& block : blocks) {
        Block checked;
        std::visit(checked, block);
        text += checked.text;
        source += checked.source + '\n';
        require(parseMarkdownBlocks(checked.source) == std::vector{block}, "a block reads again as itself");
    }
    require(text <= input.size() && blocks.size() <= input.size(), "blocks have no more text than their source");
    require(parseMarkdownBlocks(source) == blocks, "blocks apart read again as themselves");
    require(parseMarkdownBlocks(withLineFeeds(std::string(input))) == blocks, "a return is a line end like a feed");
}
