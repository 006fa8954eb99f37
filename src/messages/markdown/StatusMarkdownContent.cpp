#include "messages/markdown/StatusMarkdownContent.h"

#include <utility>

#include "messages/markdown/MarkdownBlock.h"
#include "messages/markdown/TableRows.h"

namespace larkspan::messages {

namespace {

using Kind = MarkdownRow::Kind;

constexpr int gapOfBlocks = 10;
constexpr int gapOfItems = 5;

/// Appends the rows of one block after the other.
class RowWriter {
public:
    explicit RowWriter(std::size_t blocks) { content_.rows.reserve(blocks); }

    MarkdownRows take() && { return std::move(content_); }

    void operator()(MarkdownHeading heading)
    {
        add(heading.level == 1 ? Kind::title : Kind::headline, {}, std::move(heading.text), blockGap());
    }

    void operator()(MarkdownParagraph paragraph) { add(Kind::paragraph, {}, std::move(paragraph.text), blockGap()); }

    void operator()(MarkdownUnorderedList list)
    {
        auto gap = blockGap();
        for (auto& item : list.items) {
            add(Kind::bulletItem, "•", std::move(item), gap);
            gap = gapOfItems;
        }
    }

    void operator()(MarkdownOrderedList list)
    {
        auto gap = blockGap();
        for (std::size_t index = 0; index < list.items.size(); ++index) {
            add(Kind::numberedItem, std::to_string(index + 1) + '.', std::move(list.items[index]), gap);
            gap = gapOfItems;
        }
    }

    void operator()(MarkdownQuote quote) { add(Kind::quote, {}, std::move(quote.text), blockGap()); }

    void operator()(const MarkdownTable& table) { appendTable(content_, table, blockGap()); }

private:
    /// The first block has nothing above it; a table already has some space below its last row.
    int blockGap() const
    {
        if (content_.rows.empty()) return 0;
        const auto above = content_.rows.back().kind;
        return gapOfBlocks + (above == Kind::tableRow || above == Kind::tableDivider ? tablePadding : 0);
    }

    void add(Kind kind, const std::string& label, std::string text, int gap)
    {
        bool isFirst = true;
        for (auto& piece : MarkdownText::piecesOf(inlineMarkdownText(std::move(text)))) {
            content_.rows.push_back({.kind = kind,
                .label = label,
                .text = std::move(piece),
                .continuesPrevious = !isFirst,
                .gap = isFirst ? gap : 0});
            isFirst = false;
        }
    }

    MarkdownRows content_;
};

}  // namespace

StatusMarkdownContent::StatusMarkdownContent(std::string source)
    : source_(std::move(source))
{
}

MarkdownRows StatusMarkdownContent::rows() const
{
    auto blocks = parseMarkdownBlocks(source_);
    RowWriter writer(blocks.size());
    for (auto& block : blocks) std::visit(writer, std::move(block));
    return std::move(writer).take();
}

}  // namespace larkspan::messages
