#include "messages/markdown/MarkdownTableLines.h"

#include "support/Trimming.h"
#include "support/Utf8.h"

namespace larkspan::messages {

namespace {

bool holdsPipe(std::string_view line)
{
    return line.find('|') != std::string_view::npos;
}

/// Returns the cells of a line one after the other.
class CellReader {
public:
    explicit CellReader(std::string_view line)
        : rest_(support::withoutBlanksAround(line))
    {
        const auto first = rest_.find_first_not_of('|');
        rest_ = first == std::string_view::npos ? "" : rest_.substr(first, rest_.find_last_not_of('|') - first + 1);
    }

    bool isAtEnd() const { return isAtEnd_; }

    std::string_view next()
    {
        const auto pipe = rest_.find('|');
        isAtEnd_ = pipe == std::string_view::npos;
        const auto cell = rest_.substr(0, pipe);
        if (!isAtEnd_) rest_.remove_prefix(pipe + 1);
        return support::withoutBlanksAround(cell);
    }

private:
    std::string_view rest_;
    bool isAtEnd_ = false;
};

bool isTableSeparator(std::string_view line)
{
    CellReader cells(line);
    while (!cells.isAtEnd()) {
        if (!isTableSeparatorCell(cells.next())) return false;
    }
    return true;
}

}  // namespace

std::vector<std::string> parseTableCells(std::string_view line)
{
    std::vector<std::string> texts;
    CellReader cells(line);
    while (!cells.isAtEnd()) texts.emplace_back(cells.next());
    return texts;
}

bool isTableSeparatorCell(std::string_view cell)
{
    std::size_t length = 0;
    while (!cell.empty()) {
        const auto character = support::firstCharacter(cell);
        cell.remove_prefix(character.length);
        if (support::isBlank(character.code)) continue;
        if (character.code != U'-' && character.code != U':') return false;
        ++length;
    }
    return length >= 3;
}

bool beginsTable(std::span<const std::string_view> lines, std::size_t index)
{
    return index + 1 < lines.size() && holdsPipe(lines[index]) && isTableSeparator(lines[index + 1]);
}

std::optional<TableLines> parseTableBlock(std::span<const std::string_view> lines, std::size_t index)
{
    if (!beginsTable(lines, index)) return std::nullopt;
    TableLines found{{parseTableCells(lines[index]), {}}, index + 2};
    for (; found.nextIndex < lines.size() && holdsPipe(lines[found.nextIndex]); ++found.nextIndex) {
        found.table.rows.push_back(parseTableCells(lines[found.nextIndex]));
    }
    return found;
}

}  // namespace larkspan::messages
