#include "messages/markdown/StatusMarkdownContent.h"

#include <gtest/gtest.h>

namespace larkspan::messages {

namespace {

using Kind = MarkdownRow::Kind;
using Rows = std::vector<MarkdownRow>;

Rows rowsOf(std::string source)
{
    return StatusMarkdownContent(std::move(source)).rows().rows;
}

MarkdownText plain(std::string text)
{
    return {text, text, {}};
}

TEST(StatusMarkdownContent, KeepsItsSource)
{
    EXPECT_EQ(StatusMarkdownContent("# a\r\n").source(), "# a\r\n");
}

TEST(StatusMarkdownContent, OfABlankSourceHasNoRows)
{
    EXPECT_EQ(StatusMarkdownContent(" \n\t").rows(), MarkdownRows{});
}

TEST(StatusMarkdownContent, TellsAHeadingOfLevelOneFromTheOthers)
{
    EXPECT_EQ(rowsOf("# a\n## b\n###### c"),
        (Rows{{.kind = Kind::title, .text = plain("a")}, {.kind = Kind::headline, .text = plain("b"), .gap = 10},
            {.kind = Kind::headline, .text = plain("c"), .gap = 10}}));
}

TEST(StatusMarkdownContent, ReadsTheInlineMarkupOfEachText)
{
    const MarkdownText bold{"<b>a</b>", "a", {}};
    EXPECT_EQ(rowsOf("# **a**\n**a**\n- **a**\n1. **a**\n> **a**"),
        (Rows{{.kind = Kind::title, .text = bold}, {.kind = Kind::paragraph, .text = bold, .gap = 10},
            {.kind = Kind::bulletItem, .label = "•", .text = bold, .gap = 10},
            {.kind = Kind::numberedItem, .label = "1.", .text = bold, .gap = 10},
            {.kind = Kind::quote, .text = bold, .gap = 10}}));
}

TEST(StatusMarkdownContent, ShowsALineFeedOfAParagraphAsABreak)
{
    EXPECT_EQ(rowsOf("a\n  b"), (Rows{{.kind = Kind::paragraph, .text = {"a<br>&nbsp; b", "a\n  b", {}}}}));
}

TEST(StatusMarkdownContent, HasARowForEachItemCloserTogetherThanBlocks)
{
    EXPECT_EQ(rowsOf("- a\n- b\n\n- c"),
        (Rows{{.kind = Kind::bulletItem, .label = "•", .text = plain("a")},
            {.kind = Kind::bulletItem, .label = "•", .text = plain("b"), .gap = 5},
            {.kind = Kind::bulletItem, .label = "•", .text = plain("c"), .gap = 10}}));
}

TEST(StatusMarkdownContent, NumbersItemsFromOneWhateverTheSourceSays)
{
    EXPECT_EQ(rowsOf("1. a\n5. b"),
        (Rows{{.kind = Kind::numberedItem, .label = "1.", .text = plain("a")},
            {.kind = Kind::numberedItem, .label = "2.", .text = plain("b"), .gap = 5}}));
}

TEST(StatusMarkdownContent, ShowsQuotesAsBlocksOfTheirOwn)
{
    EXPECT_EQ(rowsOf("> a\n> b\n>"),
        (Rows{{.kind = Kind::quote, .text = plain("a")}, {.kind = Kind::quote, .text = plain("b"), .gap = 10},
            {.kind = Kind::quote, .gap = 10}}));
}

TEST(StatusMarkdownContent, ContinuesALongTextInRowsOfItsKindAndLabelWithoutAGap)
{
    const std::string text(2'000, 'a');
    for (const auto& [prefix, kind, label] : {std::tuple{"", Kind::paragraph, ""}, {"# ", Kind::title, ""},
             {"- ", Kind::bulletItem, "•"}, {"9. ", Kind::numberedItem, "1."}, {"> ", Kind::quote, ""}}) {
        const auto rows = rowsOf("x\n\n" + (prefix + text) + "b");
        ASSERT_EQ(rows.size(), 3u);
        EXPECT_EQ(rows[1].kind, kind);
        EXPECT_EQ(rows[1].label, label);
        EXPECT_EQ(rows[1].gap, 10);
        EXPECT_FALSE(rows[1].continuesPrevious);
        EXPECT_EQ(rows[1].text.plain, text);
        EXPECT_EQ(rows[2], (MarkdownRow{.kind = kind, .label = label, .text = plain("b"), .continuesPrevious = true}));
    }
}

TEST(StatusMarkdownContent, LeavesATablesPaddingAboveItAndBelow)
{
    const auto rows = rowsOf("a\n\nb|c\n---\n1|2\nd\n\ne|f\n---\n");
    ASSERT_EQ(rows.size(), 7u);
    EXPECT_EQ(rows[1].gap, 12);
    EXPECT_EQ(rows[4], (MarkdownRow{.kind = Kind::paragraph, .text = plain("d"), .gap = 12}));
    EXPECT_EQ(rows[5].gap, 12);
    EXPECT_EQ(rowsOf("b|c\n---\n\nd").at(2).gap, 12);
    EXPECT_EQ(rowsOf("b|c\n---\n").at(0).gap, 2);
}

}  // namespace

}  // namespace larkspan::messages
