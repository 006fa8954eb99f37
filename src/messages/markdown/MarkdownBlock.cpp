#include "messages/markdown/MarkdownBlock.h"

#include "messages/markdown/MarkdownLines.h"
#include "messages/markdown/MarkdownTableLines.h"
#include "messages/markdown/SourceLines.h"
#include "support/Trimming.h"

namespace larkspan::messages {

namespace {

/// Reads the blocks of a source line by line; never looks back.
class BlockReader {
public:
    explicit BlockReader(std::string_view source)
        : lines_(linesOf(source))
    {
    }

    std::vector<MarkdownBlock> read() &&
    {
        while (at_ < lines_.size()) readBlock();
        return std::move(blocks_);
    }

private:
    void readBlock()
    {
        const auto trimmed = support::withoutBlanksAround(lines_[at_]);
        if (trimmed.empty()) {
            ++at_;
        } else if (auto found = parseTableBlock(lines_, at_)) {
            blocks_.emplace_back(std::move(found->table));
            at_ = found->nextIndex;
        } else if (const auto heading = parseHeadingLine(trimmed)) {
            blocks_.emplace_back(MarkdownHeading{heading->level, std::string(heading->text)});
            ++at_;
        } else if (trimmed.starts_with('>')) {
            blocks_.emplace_back(MarkdownQuote{std::string(support::withoutBlanksAround(trimmed.substr(1)))});
            ++at_;
        } else if (parseUnorderedItem(trimmed)) {
            blocks_.emplace_back(MarkdownUnorderedList{readItems(parseUnorderedItem)});
        } else if (parseOrderedItem(trimmed)) {
            blocks_.emplace_back(MarkdownOrderedList{readItems(parseOrderedItem)});
        } else {
            blocks_.emplace_back(MarkdownParagraph{readParagraph()});
        }
    }

    template <typename Parse>
    std::vector<std::string> readItems(Parse parse)
    {
        std::vector<std::string> items;
        for (; at_ < lines_.size(); ++at_) {
            const auto item = parse(support::withoutBlanksAround(lines_[at_]));
            if (!item) break;
            items.emplace_back(*item);
        }
        return items;
    }

    std::string readParagraph()
    {
        std::string text(lines_[at_++]);
        for (; at_ < lines_.size() && !isParagraphsEnd(); ++at_) {
            text += '\n';
            text += lines_[at_];
        }
        return text;
    }

    bool isParagraphsEnd() const
    {
        const auto trimmed = support::withoutBlanksAround(lines_[at_]);
        return trimmed.empty() || parseHeadingLine(trimmed) || trimmed.starts_with('>') || parseUnorderedItem(trimmed)
            || parseOrderedItem(trimmed) || beginsTable(lines_, at_);
    }

    std::vector<std::string_view> lines_;
    std::size_t at_ = 0;
    std::vector<MarkdownBlock> blocks_;
};

}  // namespace

std::vector<MarkdownBlock> parseMarkdownBlocks(std::string_view source)
{
    return BlockReader(source).read();
}

}  // namespace larkspan::messages
