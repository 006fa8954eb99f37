#include "messages/markdown/MarkdownTableLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

namespace larkspan::messages {

namespace {

using Texts = std::vector<std::string>;
using Lines = std::vector<std::string_view>;

struct CellsRow {
    std::string line;
    Texts cells;
};

void PrintTo(const CellsRow& row, std::ostream* out)
{
    *out << '"' << row.line << '"';
}

class TableCells : public testing::TestWithParam<CellsRow> {};

TEST_P(TableCells, AreTheTrimmedTextsBetweenThePipes)
{
    EXPECT_EQ(parseTableCells(GetParam().line), GetParam().cells);
}

INSTANTIATE_TEST_SUITE_P(Lines, TableCells,
    testing::Values(CellsRow{"a|b", {"a", "b"}}, CellsRow{"| a | b |", {"a", "b"}}, CellsRow{"\t||a||\u3000", {"a"}},
        CellsRow{"| a |  | b |", {"a", "", "b"}}, CellsRow{"a||b", {"a", "", "b"}}, CellsRow{"|", {""}},
        CellsRow{"", {""}}, CellsRow{"a", {"a"}}, CellsRow{"|| |a", {"", "a"}}, CellsRow{"| | |", {"", ""}},
        CellsRow{"\\|a", {"\\", "a"}}, CellsRow{"`a|b`", {"`a", "b`"}}));

class SeparatorCell : public testing::TestWithParam<std::string> {};
class NoSeparatorCell : public testing::TestWithParam<std::string> {};

TEST_P(SeparatorCell, HasThreeOrMoreDashesAndColons)
{
    EXPECT_TRUE(isTableSeparatorCell(GetParam()));
}

TEST_P(NoSeparatorCell, HasFewerOrSomethingElse)
{
    EXPECT_FALSE(isTableSeparatorCell(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(
    Cells, SeparatorCell, testing::Values("---", ":--", ":-:", "- - -", ":::", " -\t-\u2003- ", "----------"));

INSTANTIATE_TEST_SUITE_P(
    Cells, NoSeparatorCell, testing::Values("", " ", "--", "- -", "-- a", "---\n", "\u2014\u2014\u2014", "--\xFF"));

/// The table that starts at a line, and the line after it; that of no line if there is none.
std::pair<MarkdownTable, int> tableAt(const Lines& lines, std::size_t index)
{
    const auto found = parseTableBlock(lines, index);
    return found ? std::pair(found->table, static_cast<int>(found->nextIndex)) : std::pair(MarkdownTable{}, -1);
}

class Separator : public testing::TestWithParam<std::string_view> {};
class NoSeparator : public testing::TestWithParam<std::string_view> {};

TEST_P(Separator, MakesATable)
{
    const Lines lines{"a | b", GetParam()};
    EXPECT_TRUE(beginsTable(lines, 0));
    EXPECT_EQ(tableAt(lines, 0), std::pair(MarkdownTable{{"a", "b"}, {}}, 2));
}

TEST_P(NoSeparator, MakesNoTable)
{
    const Lines lines{"a | b", GetParam()};
    EXPECT_FALSE(beginsTable(lines, 0));
    EXPECT_FALSE(parseTableBlock(lines, 0));
}

INSTANTIATE_TEST_SUITE_P(Lines, Separator,
    testing::Values("|---|---|", "---|---", "---", "|---||", "  | :-: |\t", "---|---|---|---", "- - -|:::"));

INSTANTIATE_TEST_SUITE_P(
    Lines, NoSeparator, testing::Values("", "|", "--", "| --- |  | --- |", "| --- | a |", "a | b", "--- --- x"));

TEST(TableBlock, NeedsALineBelowItsFirst)
{
    EXPECT_FALSE(parseTableBlock(Lines{"a | b"}, 0));
    EXPECT_FALSE(parseTableBlock(Lines{"a | b", "---"}, 1));
}

TEST(TableBlock, NeedsAPipeInItsFirstLine)
{
    EXPECT_FALSE(parseTableBlock(Lines{"a", "|---|", "b | c"}, 0));
}

TEST(TableBlock, HasARowForEachLineWithAPipe)
{
    EXPECT_EQ(tableAt({"x", "a | b", "---", "1", "| 1 |", "c | d"}, 1), std::pair(MarkdownTable{{"a", "b"}, {}}, 3));
    EXPECT_EQ(tableAt({"a | b", "---", "| 1 |", "- a | b", "1 | 2 | 3", "", "c | d"}, 0),
        std::pair(MarkdownTable{{"a", "b"}, {{"1"}, {"- a", "b"}, {"1", "2", "3"}}}, 5));
}

TEST(TableBlock, OfNothingButPipesHasOneEmptyHeader)
{
    EXPECT_EQ(tableAt({"|", "---", "|"}, 0), std::pair(MarkdownTable{{""}, {{""}}}, 3));
}

}  // namespace

}  // namespace larkspan::messages
