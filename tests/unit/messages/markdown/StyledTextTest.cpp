#include "messages/markdown/StyledText.h"

#include <gtest/gtest.h>

namespace larkspan::messages {

namespace {

std::string styled(std::string_view text, InlineStyles styles = {})
{
    StyledTextWriter writer(0);
    writer.add(text, styles, std::nullopt);
    return std::move(writer).take();
}

std::string styledLink(std::string_view text)
{
    StyledTextWriter writer(0);
    writer.add(text, {}, 7);
    return std::move(writer).take();
}

TEST(StyledText, EscapesWhatCouldBeMarkup)
{
    EXPECT_EQ(styled("<b>&amp;\"'</b>"), "&lt;b&gt;&amp;amp;&quot;&#39;&lt;/b&gt;");
}

TEST(StyledText, HasATagForEachStyle)
{
    EXPECT_EQ(styled("a", {.isEmphasised = true}), "<i>a</i>");
    EXPECT_EQ(styled("a", {.isStrong = true}), "<b>a</b>");
    EXPECT_EQ(styled("a", {.isCode = true}), "<font size=\"2\">a</font>");
    EXPECT_EQ(styled("a", {.isStruckThrough = true}), "<s>a</s>");
    EXPECT_EQ(styled("a", {true, true, true, true}), "<b><i><s><font size=\"2\">a</font></s></i></b>");
}

TEST(StyledText, KeepsRunsOfBlanksThatWouldBeFolded)
{
    EXPECT_EQ(styled("a b"), "a b");
    EXPECT_EQ(styled("a  b"), "a &nbsp;b");
    EXPECT_EQ(styled("a   b"), "a &nbsp; b");
    EXPECT_EQ(styled("  a"), "&nbsp; a");
    EXPECT_EQ(styled("\ta"), "&nbsp; &nbsp; a");
    EXPECT_EQ(styled("a\u2003\u3000b"), "a &nbsp;b");
}

TEST(StyledText, KeepsBlanksAcrossItsTags)
{
    StyledTextWriter writer(0);
    writer.add("a ", {}, std::nullopt);
    writer.add(" b ", {.isStrong = true}, std::nullopt);
    writer.add(" c", {}, std::nullopt);
    EXPECT_EQ(std::move(writer).take(), "a <b>&nbsp;b </b>&nbsp;c");
}

TEST(StyledText, KeepsNoBreakSpacesUnbreakable)
{
    EXPECT_EQ(styled("a\u00A0\u202Fb"), "a&nbsp;&nbsp;b");
    EXPECT_EQ(styled("a\u00A0 b"), "a&nbsp; b");
}

TEST(StyledText, HasABreakForEachLineEndAndKeepsTheIndentationBelow)
{
    EXPECT_EQ(styled("a\n\n b"), "a<br><br>&nbsp;b");
    EXPECT_EQ(styled("a \n b"), "a <br>&nbsp;b");
    EXPECT_EQ(styled("a\vb\u2028"
                     "c\u0085"),
        "a<br>b<br>c<br>");
}

TEST(StyledText, ShowsControlCharactersAndEmbeddedObjectsAsReplacementCharacters)
{
    EXPECT_EQ(styled("a\x1b[b\x7F\u0080\uFFFC"), "a\uFFFD[b\uFFFD\uFFFD\uFFFD");
}

TEST(StyledText, ShowsBadBytesAsReplacementCharactersSoThatTheyJoinNothing)
{
    EXPECT_EQ(styled("a\xFF\uFFFD"), "a\uFFFD\uFFFD");
    EXPECT_EQ(styledLink("\xE2\x80\u202E\xAE"), "<a href=\"7\">\u2068\uFFFD\uFFFD\uFFFD\u2069</a>");
}

TEST(StyledText, LetsMarksEmojiAndDirectionsOfPlainTextPass)
{
    const auto* const text = "שלום\u200F \u202Eabc\u202C e\u0301 👩\u200D💻 🇩🇪 ❤\uFE0F";
    EXPECT_EQ(styled(text), text);
}

TEST(StyledLink, IsANumberAndAnIsolatedText)
{
    EXPECT_EQ(styledLink("a"), "<a href=\"7\">\u2068a\u2069</a>");
}

TEST(StyledLink, CannotChangeItsDirection)
{
    EXPECT_EQ(styledLink("\u202A\u202B\u202C\u202D\u202E\u2066\u2067\u2068\u2069a\u200Fb"),
        "<a href=\"7\">\u2068a\u200F"
        "b\u2069</a>");
}

TEST(StyledLink, StaysOneAcrossItsStyles)
{
    StyledTextWriter writer(0);
    writer.add("a", {}, 0);
    writer.add("b", {.isStrong = true}, 0);
    writer.add("c", {.isStrong = true}, 1);
    writer.add("d", {}, std::nullopt);
    EXPECT_EQ(
        std::move(writer).take(), "<a href=\"0\">\u2068a<b>b</b>\u2069</a><a href=\"1\">\u2068<b>c</b>\u2069</a>d");
}

TEST(StyledText, GivesALongRunOfCharactersPlacesToBreak)
{
    const std::string run(200, 'a');
    EXPECT_EQ(styled(run), run);
    EXPECT_EQ(styled(run + run + 'b'),
        run + "\u200B" + run
            + "\u200B"
              "b");
    EXPECT_EQ(styled(run + ' ' + run), run + ' ' + run);
    EXPECT_EQ(styled(run + '\n' + run), run + "<br>" + run);
}

TEST(StyledText, CountsWhatDoesNotBreak)
{
    std::string blanks;
    std::string shown;
    for (int count = 0; count < 201; ++count) {
        if (count == 200) shown += "\u200B";
        blanks += "\u00A0";
        shown += "&nbsp;";
    }
    EXPECT_EQ(styled(blanks), shown);

    StyledTextWriter writer(0);
    writer.add(std::string(150, 'a'), {}, std::nullopt);
    writer.add(std::string(150, 'a'), {.isStrong = true}, std::nullopt);
    EXPECT_EQ(std::move(writer).take(),
        std::string(150, 'a') + "<b>" + std::string(50, 'a') + "\u200B" + std::string(100, 'a') + "</b>");
}

TEST(StyledText, BreaksNoCharacterFromItsMark)
{
    const std::string run(200, 'a');
    EXPECT_EQ(styled(run + "\u0301\u0302bc"),
        run
            + "\u0301\u0302\u200B"
              "bc");
}

}  // namespace

}  // namespace larkspan::messages
