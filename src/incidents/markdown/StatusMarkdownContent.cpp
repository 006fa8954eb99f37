#include "incidents/markdown/StatusMarkdownContent.h"

#include "incidents/markdown/MarkdownBlock.h"
#include "incidents/markdown/TableRows.h"

namespace larkspan::incidents {

namespace {

using Kind = MarkdownRow::Kind;

constexpr int gapOfBlocks = 10;
constexpr int gapOfItems = 5;

/// Appends the rows of one block after the other.
class RowWriter {
public:
    explicit RowWriter(std::size_t blocks) { content_.rows.reserve(blocks); }

    MarkdownRows take() && { return std::move(content_); }

    void operator()(const MarkdownHeading& heading)
    {
        add(heading.level == 1 ? Kind::title : Kind::headline, {}, heading.text, blockGap());
    }

    void operator()(const MarkdownParagraph& paragraph) { add(Kind::paragraph, {}, paragraph.text, blockGap()); }

    void operator()(const MarkdownUnorderedList& list)
    {
        auto gap = blockGap();
        for (const auto& item : list.items) {
            add(Kind::bulletItem, "•", item, gap);
            gap = gapOfItems;
        }
    }

    void operator()(const MarkdownOrderedList& list)
    {
        auto gap = blockGap();
        for (std::size_t index = 0; index < list.items.size(); ++index) {
            add(Kind::numberedItem, std::to_string(index + 1) + '.', list.items[index], gap);
            gap = gapOfItems;
        }
    }

    void operator()(const MarkdownQuote& quote) { add(Kind::quote, {}, quote.text, blockGap()); }

    void operator()(const MarkdownTable& table) { appendTable(content_, table, blockGap()); }

private:
    /// The first block has nothing above it; a table has a little room of its own below its last row.
    int blockGap() const
    {
        if (content_.rows.empty()) return 0;
        const auto above = content_.rows.back().kind;
        return gapOfBlocks + (above == Kind::tableRow || above == Kind::tableDivider ? tablePadding : 0);
    }

    void add(Kind kind, const std::string& label, const std::string& text, int gap)
    {
        bool isFirst = true;
        for (auto& piece : MarkdownText::piecesOf(inlineMarkdownText(text))) {
            MarkdownRow row{.kind = kind, .text = std::move(piece), .continuesPrevious = !isFirst};
            if (isFirst) {
                row.label = label;
                row.gap = gap;
            }
            content_.rows.push_back(std::move(row));
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
    const auto blocks = parseMarkdownBlocks(source_);
    RowWriter writer(blocks.size());
    for (const auto& block : blocks) std::visit(writer, block);
    return std::move(writer).take();
}

}  // namespace larkspan::incidents
