#include "messages/markdown/MarkdownBlock.h"

#include <gtest/gtest.h>

#include <ostream>

namespace larkspan::messages {

namespace {

using Blocks = std::vector<MarkdownBlock>;
using Heading = MarkdownHeading;
using Paragraph = MarkdownParagraph;
using Bullets = MarkdownUnorderedList;
using Numbers = MarkdownOrderedList;
using Quote = MarkdownQuote;
using Table = MarkdownTable;

TEST(MarkdownBlocks, AnEmptyOrAllBlankSourceYieldsNoBlocks)
{
    EXPECT_EQ(parseMarkdownBlocks(""), Blocks{});
    EXPECT_EQ(parseMarkdownBlocks(" \t\n\u3000\r\n\u2028\n"), Blocks{});
}

TEST(MarkdownBlocks, ACarriageReturnWithItsLineFeedIsOneLineFeedOfAParagraph)
{
    EXPECT_EQ(parseMarkdownBlocks("a\r\nb"), (Blocks{Paragraph{"a\nb"}}));
}

TEST(MarkdownBlocks, ALoneCarriageReturnSplitsThereAsWell)
{
    EXPECT_EQ(parseMarkdownBlocks("a\rb"), (Blocks{Paragraph{"a\nb"}}));
    EXPECT_EQ(parseMarkdownBlocks("# a\r- b"), (Blocks{Heading{1, "a"}, Bullets{{"b"}}}));
}

TEST(MarkdownBlocks, EveryLineEndSplitsLines)
{
    EXPECT_EQ(parseMarkdownBlocks("a\vb\fc\u0085"
                                  "d\u2028e\u2029f"),
        (Blocks{Paragraph{"a\nb\nc\nd\ne\nf"}}));
}

TEST(MarkdownBlocks, ALoneHashIsAParagraph)
{
    EXPECT_EQ(parseMarkdownBlocks("#"), (Blocks{Paragraph{"#"}}));
    EXPECT_EQ(parseMarkdownBlocks("# "), (Blocks{Paragraph{"# "}}));
}

TEST(MarkdownBlocks, AHashWithATabIsAParagraph)
{
    EXPECT_EQ(parseMarkdownBlocks("#\tx"), (Blocks{Paragraph{"#\tx"}}));
}

TEST(MarkdownBlocks, SixHashesAreAHeadingAndSevenAParagraph)
{
    EXPECT_EQ(parseMarkdownBlocks("###### x"), (Blocks{Heading{6, "x"}}));
    EXPECT_EQ(parseMarkdownBlocks("####### x"), (Blocks{Paragraph{"####### x"}}));
}

TEST(MarkdownBlocks, ThreeDashesAloneAreAParagraphAndNoRule)
{
    EXPECT_EQ(parseMarkdownBlocks("---"), (Blocks{Paragraph{"---"}}));
}

TEST(MarkdownBlocks, ThreeDashesApartAreAListOfOneItem)
{
    EXPECT_EQ(parseMarkdownBlocks("- - -"), (Blocks{Bullets{{"- -"}}}));
}

TEST(MarkdownBlocks, BoldTextAtTheStartOfALineIsAParagraph)
{
    EXPECT_EQ(parseMarkdownBlocks("**bold**"), (Blocks{Paragraph{"**bold**"}}));
}

TEST(MarkdownBlocks, EachLineOfAQuoteIsABlockOfItsOwn)
{
    EXPECT_EQ(parseMarkdownBlocks("> a\n  >b  \n>\n>> c"), (Blocks{Quote{"a"}, Quote{"b"}, Quote{""}, Quote{"> c"}}));
}

TEST(MarkdownBlocks, NumbersOfAListAreDiscarded)
{
    EXPECT_EQ(parseMarkdownBlocks("1. a\n5. b\n-3. c"), (Blocks{Numbers{{"a", "b", "c"}}}));
}

TEST(MarkdownBlocks, ANumberWithoutABlankOrATextIsAParagraph)
{
    EXPECT_EQ(parseMarkdownBlocks("1.a"), (Blocks{Paragraph{"1.a"}}));
    EXPECT_EQ(parseMarkdownBlocks("1. "), (Blocks{Paragraph{"1. "}}));
}

TEST(MarkdownBlocks, AListLineDirectlyUnderParagraphTextEndsTheParagraph)
{
    EXPECT_EQ(parseMarkdownBlocks("a\n- b"), (Blocks{Paragraph{"a"}, Bullets{{"b"}}}));
    EXPECT_EQ(parseMarkdownBlocks("a\n1. b"), (Blocks{Paragraph{"a"}, Numbers{{"b"}}}));
}

TEST(MarkdownBlocks, AnIndentedLineUnderParagraphTextJoinsItWithItsBlanksKept)
{
    EXPECT_EQ(parseMarkdownBlocks("a\n  indented"), (Blocks{Paragraph{"a\n  indented"}}));
    EXPECT_EQ(parseMarkdownBlocks("\u00A0 a \n    b\t"), (Blocks{Paragraph{"\u00A0 a \n    b\t"}}));
}

TEST(MarkdownBlocks, APipeInTheLastLineIsNoTable)
{
    EXPECT_EQ(parseMarkdownBlocks("a | b"), (Blocks{Paragraph{"a | b"}}));
}

TEST(MarkdownBlocks, TwoDashesAreNoSeparator)
{
    EXPECT_EQ(parseMarkdownBlocks("a | b\n--"), (Blocks{Paragraph{"a | b\n--"}}));
}

TEST(MarkdownBlocks, RowsOfATableMayHaveFewerOrMoreCellsThanHeaders)
{
    EXPECT_EQ(parseMarkdownBlocks("| a | b |\n|---|---|\n| 1 |\n| 1 | 2 | 3 |"),
        (Blocks{Table{{"a", "b"}, {{"1"}, {"1", "2", "3"}}}}));
}

TEST(MarkdownBlocks, ATableFollowedDirectlyByTextWithoutAPipeEndsAndTheTextStartsANewBlock)
{
    EXPECT_EQ(parseMarkdownBlocks("a | b\n---\n1 | 2\ntext\nmore"),
        (Blocks{Table{{"a", "b"}, {{"1", "2"}}}, Paragraph{"text\nmore"}}));
}

TEST(MarkdownBlocks, ATableComesBeforeHeadingQuoteAndLists)
{
    EXPECT_EQ(parseMarkdownBlocks("# a | b\n---"), (Blocks{Table{{"# a", "b"}, {}}}));
    EXPECT_EQ(parseMarkdownBlocks("> a | b\n---"), (Blocks{Table{{"> a", "b"}, {}}}));
    EXPECT_EQ(parseMarkdownBlocks("- a | b\n---"), (Blocks{Table{{"- a", "b"}, {}}}));
    EXPECT_EQ(parseMarkdownBlocks("1. a | b\n---"), (Blocks{Table{{"1. a", "b"}, {}}}));
}

TEST(MarkdownBlocks, AListCollectsALineThatCouldBeginATable)
{
    EXPECT_EQ(parseMarkdownBlocks("- a\n- b | c\n---"), (Blocks{Bullets{{"a", "b | c"}}, Paragraph{"---"}}));
}

TEST(MarkdownBlocks, AnUnorderedListMixesItsMarkersAndLosesItsIndentation)
{
    EXPECT_EQ(parseMarkdownBlocks("- a\n\t* b\n   +   c "), (Blocks{Bullets{{"a", "b", "  c"}}}));
}

TEST(MarkdownBlocks, ABlankLineEndsAListAndTheNextIsANewBlock)
{
    EXPECT_EQ(parseMarkdownBlocks("- a\n\n- b\n \n1. c\n\n1. d"),
        (Blocks{Bullets{{"a"}}, Bullets{{"b"}}, Numbers{{"c"}}, Numbers{{"d"}}}));
}

TEST(MarkdownBlocks, AnOrderedListUnderAnUnorderedOneIsABlockOfItsOwn)
{
    EXPECT_EQ(parseMarkdownBlocks("- a\n1. b\n- c\ntext"),
        (Blocks{Bullets{{"a"}}, Numbers{{"b"}}, Bullets{{"c"}}, Paragraph{"text"}}));
}

struct EndRow {
    std::string name;
    std::string below;
    MarkdownBlock next;
};

void PrintTo(const EndRow& row, std::ostream* out)
{
    *out << row.name;
}

class ParagraphsEnd : public testing::TestWithParam<EndRow> {};

TEST_P(ParagraphsEnd, IsALineOfAnotherBlock)
{
    EXPECT_EQ(parseMarkdownBlocks("a\nb\n" + GetParam().below), (Blocks{Paragraph{"a\nb"}, GetParam().next}));
}

INSTANTIATE_TEST_SUITE_P(Lines, ParagraphsEnd,
    testing::Values(EndRow{"blank", " \t\nc", Paragraph{"c"}}, EndRow{"heading", " ## c", Heading{2, "c"}},
        EndRow{"quote", " > c", Quote{"c"}}, EndRow{"bullet", " + c", Bullets{{"c"}}},
        EndRow{"number", " 2. c", Numbers{{"c"}}}, EndRow{"table", "c|d\n---\ne|f", Table{{"c", "d"}, {{"e", "f"}}}}));

TEST(MarkdownBlocks, AParagraphTakesLinesWithPipesThatBeginNoTable)
{
    EXPECT_EQ(parseMarkdownBlocks("a | b\nc | d\ne | f"), (Blocks{Paragraph{"a | b\nc | d\ne | f"}}));
}

TEST(MarkdownBlocks, ThereIsNoCodeNoRuleAndNoUnderlinedHeading)
{
    EXPECT_EQ(parseMarkdownBlocks("```\n# a\n```"), (Blocks{Paragraph{"```"}, Heading{1, "a"}, Paragraph{"```"}}));
    EXPECT_EQ(parseMarkdownBlocks("a\n==="), (Blocks{Paragraph{"a\n==="}}));
    EXPECT_EQ(parseMarkdownBlocks("    a"), (Blocks{Paragraph{"    a"}}));
    EXPECT_EQ(parseMarkdownBlocks("***"), (Blocks{Paragraph{"***"}}));
}

TEST(MarkdownBlocks, KeepBadBytesAndNULs)
{
    const std::string text("\xFF\0# a", 5);
    EXPECT_EQ(parseMarkdownBlocks(text), (Blocks{Paragraph{text}}));
}

}  // namespace

}  // namespace larkspan::messages
