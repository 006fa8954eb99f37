#include "messages/markdown/MarkdownLines.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace larkspan::messages {

namespace {

TEST(UnorderedMarkers, AreTriedInThisOrder)
{
    EXPECT_EQ(unorderedMarkers, (std::array<std::string_view, 3>{"- ", "* ", "+ "}));
}

struct LineRow {
    std::string line;
    std::string text;
};

void PrintTo(const LineRow& row, std::ostream* out)
{
    *out << '"' << row.line << '"';
}

class HeadingText : public testing::TestWithParam<LineRow> {};
class NoHeading : public testing::TestWithParam<std::string> {};
class UnorderedItem : public testing::TestWithParam<LineRow> {};
class NoUnorderedItem : public testing::TestWithParam<std::string> {};
class OrderedItem : public testing::TestWithParam<LineRow> {};
class NoOrderedItem : public testing::TestWithParam<std::string> {};

TEST(HeadingLevel, IsTheNumberOfItsHashes)
{
    for (int level = 1; level <= 6; ++level) {
        EXPECT_EQ(
            parseHeadingLine(std::string(static_cast<std::size_t>(level), '#') + " a"), (HeadingLine{level, "a"}));
    }
}

TEST_P(HeadingText, IsWhatFollowsTheOneBlankTrimmed)
{
    EXPECT_EQ(parseHeadingLine(GetParam().line), (HeadingLine{2, GetParam().text}));
}

INSTANTIATE_TEST_SUITE_P(Lines, HeadingText,
    testing::Values(LineRow{"## a", "a"}, LineRow{"##  \t a", "a"}, LineRow{"## a ##", "a ##"},
        LineRow{"## # a", "# a"}, LineRow{"## a\u3000", "a"}));

TEST_P(NoHeading, IsFoundInIt)
{
    EXPECT_FALSE(parseHeadingLine(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, NoHeading, testing::Values("", "a", "#", "###", "#\tx", "#a", "#\u00A0x", "####### x", "a # b", "\\# a"));

TEST_P(UnorderedItem, LosesItsMarkerOnly)
{
    EXPECT_EQ(parseUnorderedItem(GetParam().line), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Lines, UnorderedItem,
    testing::Values(LineRow{"- a", "a"}, LineRow{"* a", "a"}, LineRow{"+ a", "a"}, LineRow{"-   a", "  a"},
        LineRow{"- - a", "- a"}, LineRow{"* *", "*"}));

TEST_P(NoUnorderedItem, IsFoundInIt)
{
    EXPECT_FALSE(parseUnorderedItem(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Lines, NoUnorderedItem,
    testing::Values("", "-", "*", "-a", "-\ta", "**a**", "\u2022 a",
        "-\u00A0"
        "a",
        "--- a"));

TEST_P(OrderedItem, IsWhatFollowsTheOneBlank)
{
    EXPECT_EQ(parseOrderedItem(GetParam().line), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Lines, OrderedItem,
    testing::Values(LineRow{"1. a", "a"}, LineRow{"007. a", "a"}, LineRow{"+1. a", "a"}, LineRow{"-1. a", "a"},
        LineRow{"1.  a", " a"}, LineRow{"1. 2. a", "2. a"}, LineRow{"9223372036854775807. a", "a"},
        LineRow{"+9223372036854775807. a", "a"}, LineRow{"-9223372036854775808. a", "a"}));

TEST_P(NoOrderedItem, IsFoundInIt)
{
    EXPECT_FALSE(parseOrderedItem(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Lines, NoOrderedItem,
    testing::Values("", "1", "1.", "1.a", "1.\ta",
        "1.\u00A0"
        "a",
        ". a", "+. a", "-. a", "+-1. a", "-+1. a", "++1. a", "1 . a", "1.2. a", "1) a", "a. b", "0x1. a", "\u0661. a",
        "9223372036854775808. a", "-9223372036854775809. a"));

}  // namespace

}  // namespace larkspan::messages
