#include "messages/markdown/MarkdownText.h"

#include <gtest/gtest.h>

namespace larkspan::messages {

namespace {

using Texts = std::vector<MarkdownText>;

Texts piecesOf(std::string_view text)
{
    return MarkdownText::piecesOf(inlineMarkdownText(std::string(text)));
}

TEST(MarkdownText, OfNothingIsOneEmptyText)
{
    EXPECT_EQ(piecesOf(""), Texts{{}});
}

TEST(MarkdownText, IsStyledAndPlain)
{
    EXPECT_EQ(piecesOf("a  **b** & `c`\n"),
        (Texts{{"a &nbsp;<b>b</b> &amp; <font size=\"2\">c</font><br>", "a  b & c\n", {}}}));
}

TEST(MarkdownText, NumbersItsLinksAndKnowsWhereTheyLead)
{
    EXPECT_EQ(piecesOf("[a](https://b.example/) <c@d.example>"),
        (Texts{{"<a href=\"0\">\u2068a\u2069</a> <a href=\"1\">\u2068c@d.example\u2069</a>", "a c@d.example",
            {{"https://b.example/", "b.example"}, {"mailto:c@d.example", "c@d.example"}}}}));
}

TEST(MarkdownText, ShowsALinkThatMayNotBeOpenedAsText)
{
    EXPECT_EQ(piecesOf("[a](javascript:b) [*c*](/d) [e](https://f.example)"),
        (Texts{{"a <i>c</i> <a href=\"0\">\u2068e\u2069</a>", "a c e", {{"https://f.example", "f.example"}}}}));
}

TEST(MarkdownText, NamesTheRealHostOfALinkThatPretends)
{
    const auto pieces = piecesOf("[https://bank.example](https://bank.example.evil.example/)");
    EXPECT_EQ(pieces.at(0).links.at(0).host, "bank.example.evil.example");
}

TEST(MarkdownText, IsCutAtALineEndThatIsThenNotShown)
{
    const auto first = "*" + std::string(1'500, 'a') + "*\n";
    const auto second = std::string(1'000, 'b');
    const auto pieces = piecesOf(first + second);
    ASSERT_EQ(pieces.size(), 2u);
    EXPECT_EQ(pieces[0].plain, std::string(1'500, 'a') + '\n');
    EXPECT_TRUE(pieces[0].styled.ends_with("aaa</i>"));
    EXPECT_EQ(pieces[1].plain, second);
}

TEST(MarkdownText, CarriesStylesAndLinksAcrossItsPieces)
{
    const auto pieces
        = piecesOf("x [**" + std::string(1'997, 'a') + ' ' + std::string(500, 'b') + "**](https://c.example)");
    ASSERT_EQ(pieces.size(), 2u);
    const std::vector<MarkdownLink> links{{"https://c.example", "c.example"}};
    EXPECT_EQ(pieces[0].links, links);
    EXPECT_EQ(pieces[1].links, links);
    EXPECT_TRUE(pieces[0].styled.ends_with(" </b>\u2069</a>"));
    EXPECT_TRUE(pieces[1].styled.starts_with("<a href=\"0\">\u2068<b>bbb"));
}

TEST(MarkdownText, CountsTheLinksOfEachPieceAnew)
{
    const auto pieces = piecesOf(
        "[a](https://b.example)\n" + std::string(1'999, 'c') + " [d](https://e.example) [f](https://g.example)");
    ASSERT_EQ(pieces.size(), 3u);
    EXPECT_TRUE(pieces[1].links.empty());
    EXPECT_EQ(pieces[2].styled, "<a href=\"0\">\u2068d\u2069</a> <a href=\"1\">\u2068f\u2069</a>");
    EXPECT_EQ(pieces[2].links.at(1).host, "g.example");
}

TEST(MarkdownText, EndsItsLinkWhereOnlyTheLineEndOfItIsLeft)
{
    const auto pieces = piecesOf(std::string(1'999, 'a') + "[\n" + std::string(9, 'b') + "](https://c.example)");
    ASSERT_EQ(pieces.size(), 2u);
    EXPECT_TRUE(pieces[0].links.empty());
    EXPECT_EQ(pieces[0].plain, std::string(1'999, 'a') + '\n');
    EXPECT_EQ(pieces[1].styled, "<a href=\"0\">\u2068" + std::string(9, 'b') + "\u2069</a>");
}

}  // namespace

}  // namespace larkspan::messages
