#include "messages/markdown/TableRows.h"

#include <algorithm>
#include <span>

#include "messages/markdown/WidestTexts.h"

namespace larkspan::messages {

namespace {

using Kind = MarkdownRow::Kind;
using Cells = std::span<const std::string>;

constexpr std::size_t mostColumns = 64;
constexpr int gapOfRows = 7;
constexpr int gapOfTables = 10;

/// Appends the rows for as many columns of a table as fit in one row.
class ColumnsWriter {
public:
    ColumnsWriter(MarkdownRows& content, std::size_t columns)
        : content_(content)
        , table_(content.tables.size())
        , widest_(columns)
    {
        content_.tables.emplace_back();
    }

    /// A cell that is too long for one item continues in the next row.
    void add(Kind kind, Cells texts, int gap)
    {
        std::vector<std::vector<MarkdownText>> columns;
        columns.reserve(texts.size());
        std::size_t height = 1;
        for (const auto& text : texts) {
            columns.push_back(MarkdownText::piecesOf(inlineMarkdownText(text)));
            height = std::max(height, columns.back().size());
        }
        for (std::size_t line = 0; line < height; ++line) addLine(kind, columns, line, line == 0 ? gap : 0);
    }

    /// Called after the last row.
    void addColumns()
    {
        for (const auto& column : widest_) content_.tables[table_].widestTexts.push_back(column.texts());
    }

    void addDivider() { content_.rows.push_back({.kind = Kind::tableDivider, .table = table_, .gap = gapOfRows}); }

private:
    void addLine(Kind kind, std::vector<std::vector<MarkdownText>>& columns, std::size_t line, int gap)
    {
        MarkdownRow row{.kind = kind, .table = table_, .continuesPrevious = line > 0, .gap = gap};
        row.cells.reserve(columns.size());
        for (std::size_t column = 0; column < columns.size(); ++column) {
            if (line >= columns[column].size()) continue;
            row.cells.resize(column + 1);
            row.cells[column] = std::move(columns[column][line]);
            widest_[column].add(row.cells[column], kind == Kind::tableHeader);
        }
        content_.rows.push_back(std::move(row));
    }

    MarkdownRows& content_;
    std::size_t table_;
    std::vector<WidestTexts> widest_;
};

Cells behind(Cells cells, std::size_t count)
{
    return cells.subspan(std::min(count, cells.size()));
}

Cells upTo(Cells cells, std::size_t count)
{
    return cells.first(std::min(count, cells.size()));
}

}  // namespace

void appendTable(MarkdownRows& content, const MarkdownTable& table, int gap)
{
    Cells headers = table.headers;
    std::vector<Cells> rows(table.rows.begin(), table.rows.end());
    while (!headers.empty()) {
        const auto columns = std::min(headers.size(), mostColumns);
        ColumnsWriter writer(content, columns);
        writer.add(Kind::tableHeader, headers.first(columns), gap + tablePadding);
        writer.addDivider();
        for (const auto& row : rows) writer.add(Kind::tableRow, upTo(row, columns), gapOfRows);
        writer.addColumns();

        // Only rows that have more cells continue; otherwise many short rows would be repeated for each of many
        // columns.
        headers = headers.subspan(columns);
        for (auto& row : rows) row = behind(row, columns);
        std::erase_if(rows, [](Cells row) { return row.empty(); });
        gap = gapOfTables + tablePadding;
    }
}

}  // namespace larkspan::messages
