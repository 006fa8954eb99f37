#include "messages/markdown/InlineText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string_view>

namespace larkspan::messages {

namespace {

/// A run together with its text.
struct Run {
    std::string text;
    InlineStyles styles = {};
    std::optional<std::size_t> link = {};

    bool operator==(const Run&) const = default;
};

void PrintTo(const Run& run, std::ostream* out)
{
    *out << testing::PrintToString(run.text);
    const auto& [isEmphasised, isStrong, isCode, isStruckThrough] = run.styles;
    *out << (isEmphasised ? " emphasised" : "") << (isStrong ? " strong" : "") << (isCode ? " code" : "")
         << (isStruckThrough ? " struck through" : "");
    if (run.link) *out << " link " << *run.link;
}

using Runs = std::vector<Run>;
using Destinations = std::vector<std::string>;

constexpr InlineStyles emphasised{.isEmphasised = true};
constexpr InlineStyles strong{.isStrong = true};
constexpr InlineStyles code{.isCode = true};
constexpr InlineStyles struckThrough{.isStruckThrough = true};

Runs runsOf(std::string_view source)
{
    const auto found = inlineMarkdownText(std::string(source));
    Runs runs;
    std::size_t begin = 0;
    for (const auto& run : found.runs) {
        runs.push_back({found.text.substr(begin, run.length), run.styles, run.link});
        begin += run.length;
    }
    EXPECT_EQ(begin, found.text.size());
    return runs;
}

Destinations destinationsOf(std::string_view source)
{
    return inlineMarkdownText(std::string(source)).destinations;
}

TEST(InlineText, OfNothingHasNoRuns)
{
    EXPECT_EQ(inlineMarkdownText(""), InlineText{});
}

TEST(InlineText, WithoutMarkupIsOneRun)
{
    EXPECT_EQ(inlineMarkdownText("just text"), (InlineText{"just text", {{9}}, {}}));
}

TEST(InlineText, HasEmphasisStrongCodeAndStrikethrough)
{
    EXPECT_EQ(runsOf("a *b* _c_"), (Runs{{"a "}, {"b", emphasised}, {" "}, {"c", emphasised}}));
    EXPECT_EQ(runsOf("**b** __c__"), (Runs{{"b", strong}, {" "}, {"c", strong}}));
    EXPECT_EQ(runsOf("`b` ``c`d``"), (Runs{{"b", code}, {" "}, {"c`d", code}}));
    EXPECT_EQ(runsOf("~b~ ~~c~~"), (Runs{{"b", struckThrough}, {" "}, {"c", struckThrough}}));
}

TEST(InlineText, NestsItsStyles)
{
    EXPECT_EQ(runsOf("***a** b*"), (Runs{{"a", {.isEmphasised = true, .isStrong = true}}, {" b", emphasised}}));
    EXPECT_EQ(runsOf("*a *b* c*"), (Runs{{"a b c", emphasised}}));
    EXPECT_EQ(runsOf("~~**`a`**~~"), (Runs{{"a", {.isStrong = true, .isCode = true, .isStruckThrough = true}}}));
}

TEST(InlineText, ShowsMarkupThatStylesNothing)
{
    for (const auto* const text :
        {"a * b", "**", "*a", "`a", "snake_case_name", "~~~a~~~", "a]b[c", "[a]", "[a][b]", "<>"})
        EXPECT_EQ(runsOf(text), (Runs{{text}})) << text;
}

TEST(InlineText, LosesTheBackslashOfAnEscape)
{
    EXPECT_EQ(runsOf(R"(\*a\* \\ \a \` \<)"), (Runs{{R"(*a* \ \a ` <)"}}));
}

struct SpacedRow {
    std::string text;
};

void PrintTo(const SpacedRow& row, std::ostream* out)
{
    *out << testing::PrintToString(row.text);
}

class WhiteSpace : public testing::TestWithParam<SpacedRow> {};

TEST_P(WhiteSpace, StaysAsItIs)
{
    const auto& text = GetParam().text;
    EXPECT_EQ(runsOf(text), (Runs{{text}}));
    EXPECT_EQ(runsOf(text + "*b*" + text), (Runs{{text}, {"b", emphasised}, {text}}));
    EXPECT_EQ(runsOf("`b`" + text + "`b`"), (Runs{{"b", code}, {text}, {"b", code}}));
}

INSTANTIATE_TEST_SUITE_P(Texts, WhiteSpace,
    testing::Values(SpacedRow{" "}, SpacedRow{"    "}, SpacedRow{"\t"}, SpacedRow{"\n"}, SpacedRow{"\n\n\n"},
        SpacedRow{"  \n  "}, SpacedRow{" \t\n\t "}, SpacedRow{"\u00A0"}, SpacedRow{"\n\u00A0\n"},
        SpacedRow{"\u2003\u3000"}, SpacedRow{"\v"}, SpacedRow{"\f\v \n\v"}, SpacedRow{"\r"}, SpacedRow{"\r\n"},
        SpacedRow{" \u2028 "}));

TEST(InlineText, KeepsLineFeedsAndBlanksWithinStyles)
{
    EXPECT_EQ(runsOf("*a  \n  b*"), (Runs{{"a  \n  b", emphasised}}));
    EXPECT_EQ(runsOf("`a  \n  b`"), (Runs{{"a  \n  b", code}}));
    EXPECT_EQ(runsOf("`\na\n`"), (Runs{{"\na\n", code}}));
}

TEST(InlineText, TakesOneBlankFromBothEndsOfCode)
{
    EXPECT_EQ(runsOf("`` `a` ``"), (Runs{{"`a`", code}}));
    EXPECT_EQ(runsOf("`  `"), (Runs{{"  ", code}}));
}

TEST(InlineText, DoesNotEmphasiseBesideALineFeed)
{
    EXPECT_EQ(runsOf("*\na*"), (Runs{{"*\na*"}}));
    EXPECT_EQ(runsOf("*a\n*"), (Runs{{"*a\n*"}}));
}

TEST(InlineText, LosesTheBackslashOfAHardLineBreak)
{
    EXPECT_EQ(runsOf("a\\\nb"), (Runs{{"a\nb"}}));
    EXPECT_EQ(runsOf("a\\\r\nb"), (Runs{{"a\r\nb"}}));
    EXPECT_EQ(runsOf("*a\\\nb*\\\n\\\n"), (Runs{{"a\nb", emphasised}, {"\n\n"}}));
}

TEST(InlineText, KeepsABackslashThatBreaksNoLine)
{
    EXPECT_EQ(runsOf("a\\"), (Runs{{"a\\"}}));
    EXPECT_EQ(runsOf("a\\\\\nb"), (Runs{{"a\\\nb"}}));
    EXPECT_EQ(runsOf("a\\ \nb"), (Runs{{"a\\ \nb"}}));
    EXPECT_EQ(runsOf("`a\\\nb`"), (Runs{{"a\\\nb", code}}));
}

class BlockSyntax : public testing::TestWithParam<std::string> {};

TEST_P(BlockSyntax, IsTextLikeAnyOther)
{
    EXPECT_EQ(runsOf(GetParam()), (Runs{{GetParam()}}));
    EXPECT_EQ(runsOf(GetParam() + '&'), (Runs{{GetParam() + '&'}}));
    EXPECT_EQ(runsOf("&\n" + GetParam()), (Runs{{"&\n" + GetParam()}}));
}

INSTANTIATE_TEST_SUITE_P(Texts, BlockSyntax,
    testing::Values("# a", "a\n===", "a\n---", "---", "***", "___", "- a", "* a", "+ a", "1. a", "1) a", "> a", "    a",
        "\ta", "a | b\n--- | ---\n1 | 2", "[a]: https://b.example\n\n[a]", "[a]: <b> 'c'", "<div>\n\n*\n</div>",
        "<pre>", "<!-- a -->", "<?a?>", "\n\na\n\nb\n\n", "```\na", "~~~\na"));

TEST(InlineText, TakesNoTagForMarkup)
{
    EXPECT_EQ(runsOf("<b>*a*</b>"), (Runs{{"<b>"}, {"a", emphasised}, {"</b>"}}));
    EXPECT_EQ(runsOf("<a href=\"*b*\">"), (Runs{{"<a href=\""}, {"b", emphasised}, {"\">"}}));
}

TEST(InlineText, HasLinksWithTheirDestinations)
{
    EXPECT_EQ(runsOf("a [b](https://c.example/d) e"), (Runs{{"a "}, {"b", {}, 0}, {" e"}}));
    EXPECT_EQ(destinationsOf("a [b](https://c.example/d) e"), (Destinations{"https://c.example/d"}));
    EXPECT_EQ(runsOf("[*a* b](</c d> 'title')[e]()"), (Runs{{"a", emphasised, 0}, {" b", {}, 0}, {"e", {}, 1}}));
    EXPECT_EQ(destinationsOf("[*a* b](</c d> 'title')[e]()"), (Destinations{"/c d", ""}));
}

TEST(InlineText, DecodesReferencesAndEscapesInDestinations)
{
    EXPECT_EQ(destinationsOf(R"([a](/b?c&amp;d\)&copy;&nope;))"), (Destinations{"/b?c&d)©&nope;"}));
    EXPECT_EQ(destinationsOf(std::string_view("[a](<b\0c>)", 10)), (Destinations{"b\uFFFDc"}));
}

TEST(InlineText, LetsALinksDestinationStandOnALineOfItsOwn)
{
    EXPECT_EQ(runsOf("[a](\n  /b\n  'title\nof two lines'  )"), (Runs{{"a", {}, 0}}));
    EXPECT_EQ(destinationsOf("[a](\n  /b\n  'title\nof two lines'  )"), (Destinations{"/b"}));
}

TEST(InlineText, HasNoLinkWithinALink)
{
    EXPECT_EQ(runsOf("[a [b](/c) d](/e)"), (Runs{{"[a "}, {"b", {}, 0}, {" d](/e)"}}));
    EXPECT_EQ(destinationsOf("[a [b](/c) d](/e)"), (Destinations{"/c"}));
}

TEST(InlineText, HasAutolinks)
{
    EXPECT_EQ(runsOf("<https://a.example/?b&c>"), (Runs{{"https://a.example/?b&c", {}, 0}}));
    EXPECT_EQ(destinationsOf("<https://a.example/?b&c>"), (Destinations{"https://a.example/?b&c"}));
    EXPECT_EQ(runsOf("<me@a.example>"), (Runs{{"me@a.example", {}, 0}}));
    EXPECT_EQ(destinationsOf("<me@a.example>"), (Destinations{"mailto:me@a.example"}));
    EXPECT_EQ(runsOf("https://a.example <https://a b>"), (Runs{{"https://a.example <https://a b>"}}));
}

TEST(InlineText, ShowsAnImageAsItsDescription)
{
    EXPECT_EQ(runsOf("a ![b *c* [d](e)](https://f.example/g.png) h"), (Runs{{"a b c d h"}}));
    EXPECT_EQ(destinationsOf("a ![b *c* [d](e)](https://f.example/g.png) h"), (Destinations{}));
    EXPECT_EQ(runsOf("*![a ![b](c)](d)*"), (Runs{{"a b", emphasised}}));
    EXPECT_EQ(destinationsOf("*![a ![b](c)](d)*"), (Destinations{}));
    EXPECT_EQ(runsOf("[![a](b)](c)"), (Runs{{"a", {}, 0}}));
    EXPECT_EQ(destinationsOf("[![a](b)](c)"), (Destinations{"c"}));
    EXPECT_EQ(inlineMarkdownText("![](a)"), InlineText{});
}

TEST(InlineText, DecodesCharacterReferencesButNotInCode)
{
    EXPECT_EQ(runsOf("&lt;b&gt; &#42;a* &nope;"), (Runs{{"<b> *a* &nope;"}}));
    EXPECT_EQ(runsOf("`&lt;`"), (Runs{{"&lt;", code}}));
    EXPECT_EQ(runsOf("a&nbsp;b\u00A0"),
        (Runs{{"a\u00A0"
               "b\u00A0"}}));
}

TEST(InlineText, ShowsANULAsAReplacementCharacter)
{
    EXPECT_EQ(runsOf(std::string_view("\0a\0", 3)), (Runs{{"\uFFFDa\uFFFD"}}));
    EXPECT_EQ(runsOf(std::string_view("`\0a\0\0`", 6)), (Runs{{"\uFFFDa\uFFFD\uFFFD", code}}));
}

TEST(InlineText, KeepsBadBytes)
{
    EXPECT_EQ(runsOf("\xFF * \xC3&\xE2\x80"), (Runs{{"\xFF * \xC3&\xE2\x80"}}));
    EXPECT_EQ(runsOf("*\xE2\x80* \x80"), (Runs{{"\xE2\x80", emphasised}, {" \x80"}}));
}

TEST(InlineText, IsVerbatimWhereItIsTooLongToRead)
{
    std::string text(64 * 1024 * 1024, 'a');
    text += "*b*";
    EXPECT_TRUE(inlineMarkdownText(text) == (InlineText{text, {{text.size()}}, {}}));
}

TEST(InlineText, IsItsRunsPutTogether)
{
    EXPECT_EQ(inlineMarkdownText("a *b* [`c`](d)\n"),
        (InlineText{"a b c\n", {{2}, {1, emphasised}, {1}, {1, code, 0}, {1}}, {"d"}}));
}

}  // namespace

}  // namespace larkspan::messages
