#include <gtest/gtest.h>

#include "messages/markdown/StatusMarkdownContent.h"
#include "messages/markdown/WidestTexts.h"

namespace larkspan::messages {

namespace {

using Kind = MarkdownRow::Kind;
using Rows = std::vector<MarkdownRow>;
using Texts = std::vector<MarkdownColumns::Text>;

MarkdownRows rowsOf(std::string source)
{
    return StatusMarkdownContent(std::move(source)).rows();
}

MarkdownText plain(std::string text)
{
    return {text, text, {}};
}

std::string cells(std::size_t count, const std::string& text)
{
    std::string line;
    for (; count > 0; --count) line += '|' + text;
    return line + "|\n";
}

TEST(TableRows, AreItsHeadersADividerAndARowForEachRow)
{
    const auto content = rowsOf("| a | **b** |\n|---|---|\n| 1 | 2 |\n| 3 | 4 |");
    EXPECT_EQ(content.rows,
        (Rows{{.kind = Kind::tableHeader, .cells = {plain("a"), {"<b>b</b>", "b", {}}}, .gap = 2},
            {.kind = Kind::tableDivider, .gap = 7},
            {.kind = Kind::tableRow, .cells = {plain("1"), plain("2")}, .gap = 7},
            {.kind = Kind::tableRow, .cells = {plain("3"), plain("4")}, .gap = 7}}));
}

TEST(TableRows, HaveNoCellWhereTheirRowHasNone)
{
    EXPECT_EQ(rowsOf("| a | b |\n|---|---|\n| 1 |").rows.at(2).cells, std::vector{plain("1")});
}

TEST(TableRows, LoseTheCellsBeyondTheHeaders)
{
    EXPECT_EQ(rowsOf("| a | b |\n|---|---|\n| 1 | 2 | 3 |").rows.at(2).cells, (std::vector{plain("1"), plain("2")}));
}

TEST(TableRows, KeepTheirEmptyCells)
{
    EXPECT_EQ(rowsOf("a|b|c\n---\n1||3\n|").rows.at(2).cells, (std::vector{plain("1"), plain(""), plain("3")}));
    EXPECT_EQ(rowsOf("a|b|c\n---\n1||3\n|").rows.at(3).cells, std::vector{plain("")});
}

TEST(TableRows, KnowTheTextsOfEachColumnThatMayBeItsWidest)
{
    const auto content = rowsOf("a|header\n---\n**long**|1\n\nb|c\n---\n");
    ASSERT_EQ(content.tables.size(), 2u);
    EXPECT_EQ(
        content.tables[0].widestTexts, (std::vector<Texts>{{{"<b>long</b>"}, {"a", true}}, {{"header", true}, {"1"}}}));
    EXPECT_EQ(content.tables[1].widestTexts, (std::vector<Texts>{{{"b", true}}, {{"c", true}}}));
    EXPECT_EQ(content.rows.at(2).table, 0u);
    EXPECT_EQ(content.rows.at(3).table, 1u);
}

TEST(TableRows, TakeATextOfFewBytesForWiderThanALongerOneOfMany)
{
    const auto content = rowsOf("a|\n---\nинцидент|\nan incident long ago|\n");
    EXPECT_EQ(content.tables[0].widestTexts.at(0).front().styled, "an incident long ago");
}

TEST(TableRows, KeepNoMoreTextsOfAColumnThanAreMeasuredAtOnce)
{
    std::string table = "a|b\n---\n";
    for (int row = 0; row < 1'000; ++row) table += "same|" + std::string(static_cast<std::size_t>(row), 'x') + '\n';
    const auto widest = rowsOf(table).tables[0].widestTexts;
    EXPECT_EQ(widest[0], (Texts{{"same"}, {"a", true}}));
    EXPECT_EQ(widest[1].size(), WidestTexts::most);
    EXPECT_EQ(widest[1].front().styled.size(), 999 + 3 * 4u) << "with the places at which it may break";
}

TEST(TableRows, ContinueALongCellInTheRowBelow)
{
    const std::string text(2'000, 'x');
    const auto rows = rowsOf("a|b\n---\n1|" + text + "y\n3|4").rows;
    ASSERT_EQ(rows.size(), 5u);
    EXPECT_EQ(rows[2].cells.at(1).plain, text);
    EXPECT_EQ(
        rows[3], (MarkdownRow{.kind = Kind::tableRow, .cells = {plain(""), plain("y")}, .continuesPrevious = true}));
    EXPECT_FALSE(rows[4].continuesPrevious);
}

TEST(TableRows, OfManyColumnsGoOnBelowAsATableOfTheirOwn)
{
    const auto content = rowsOf(cells(65, "a") + "---\n" + cells(70, "1") + cells(2, "2"));
    ASSERT_EQ(content.tables.size(), 2u);
    EXPECT_EQ(content.tables[0].widestTexts.size(), 64u);
    EXPECT_EQ(content.tables[1].widestTexts, (std::vector<Texts>{{{"a", true}, {"1"}}}));
    ASSERT_EQ(content.rows.size(), 7u);
    EXPECT_EQ(content.rows[2].cells.size(), 64u);
    EXPECT_EQ(content.rows[3].cells.size(), 2u);
    EXPECT_EQ(content.rows[4], (MarkdownRow{.kind = Kind::tableHeader, .cells = {plain("a")}, .table = 1, .gap = 14}));
    EXPECT_EQ(content.rows[6], (MarkdownRow{.kind = Kind::tableRow, .cells = {plain("1")}, .table = 1, .gap = 7}));
}

TEST(TableRows, OfManyColumnsRepeatNoRowThatHasNothingMoreToShow)
{
    const auto content = rowsOf(cells(640, "a") + "---\n" + cells(1, "1") + cells(1, "2") + cells(640, "3"));
    EXPECT_EQ(content.tables.size(), 10u);
    EXPECT_EQ(content.rows.size(), 10u * 3 + 2);
}

}  // namespace

}  // namespace larkspan::messages
