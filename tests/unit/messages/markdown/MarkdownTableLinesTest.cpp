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

class Separator : public testing::TestWithParam<std::string_view> {};
class NoSeparator : public testing::TestWithParam<std::string_view> {};

TEST_P(Separator, MakesATable)
{
    const Lines lines{"a | b", GetParam()};
    EXPECT_TRUE(beginsTable(lines, 0));
    const auto found = parseTableBlock(lines, 0);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->table, (MarkdownTable{{"a", "b"}, {}}));
    EXPECT_EQ(found->nextIndex, 2u);
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
    const auto found = parseTableBlock(Lines{"x", "a | b", "---", "1", "| 1 |", "c | d"}, 1);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->table, (MarkdownTable{{"a", "b"}, {}}));
    EXPECT_EQ(found->nextIndex, 3u);

    const auto next = parseTableBlock(Lines{"a | b", "---", "| 1 |", "- a | b", "1 | 2 | 3", "", "c | d"}, 0);
    ASSERT_TRUE(next);
    EXPECT_EQ(next->table, (MarkdownTable{{"a", "b"}, {{"1"}, {"- a", "b"}, {"1", "2", "3"}}}));
    EXPECT_EQ(next->nextIndex, 5u);
}

TEST(TableBlock, OfNothingButPipesHasOneEmptyHeader)
{
    const auto found = parseTableBlock(Lines{"|", "---", "|"}, 0);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->table, (MarkdownTable{{""}, {{""}}}));
}

}  // namespace

}  // namespace larkspan::messages
