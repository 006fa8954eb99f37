#include <QFontDatabase>
#include <QFontMetricsF>
#include <QQuickTextDocument>
#include <QTextBlock>
#include <QTextDocument>

#include <gtest/gtest.h>

#include <map>

#include "Measures.h"
#include "MessageOnScreen.h"

namespace larkspan {

namespace {

class MessageLayout : public MessageOnScreen {
protected:
    /// The line of the list that contains a text.
    static const QQuickItem& lineOf(const QQuickItem& text) { return *text.parentItem(); }

    static double baselineOf(const QQuickItem& text) { return frameOf(text).top() + text.baselineOffset(); }
    const QQuickItem& letterOf(const char* mark) const
    {
        return *partOf(words(mark), "text", QString::fromUtf8(mark).first(1));
    }
};

TEST_F(MessageLayout, OfAHeadingOfLevelOneIsLargeAndOfEveryOtherAHeadline)
{
    open(R"(# One\n## Two\n###### Six\nWords)");
    EXPECT_EQ(sizeOf(words("One")), type::title3);
    for (const auto* const heading : {"Two", "Six"}) EXPECT_EQ(sizeOf(words(heading)), type::body) << heading;
    for (const auto* const heading : {"One", "Two", "Six"})
        EXPECT_EQ(fontOf(words(heading)).weight(), QFont::DemiBold) << heading;
    EXPECT_EQ(sizeOf(words("Words")), type::body);
    EXPECT_EQ(fontOf(words("Words")).weight(), QFont::Normal);
    EXPECT_EQ(colorOf(words("Words")), light::primary);
}

TEST_F(MessageLayout, HasTenPointsBetweenBlocks)
{
    open(R"(# One\nTwo\n- Three\n\n- Four\n1. Five\n> Six\n> Seven)");
    const char* const blocks[] = {"One", "Two", "Three", "Four", "Five", "Six", "Seven"};
    for (std::size_t place = 1; place < std::size(blocks); ++place)
        EXPECT_EQ(gapBelow(words(blocks[place - 1]), words(blocks[place])), 10) << blocks[place];
}

TEST_F(MessageLayout, OfAListHasFivePointsBetweenItemsAndSevenBehindTheBullet)
{
    open(R"(- One\n* Two)");
    EXPECT_EQ(gapBelow(words("One"), words("Two")), 5);
    const auto& bullet = words("•");
    EXPECT_EQ(colorOf(letterOf("•")), light::secondary);
    EXPECT_EQ(gapBeside(bullet, words("One")), 7);
    EXPECT_NEAR(baselineOf(letterOf("•")), baselineOf(words("One")), 0.5);
    EXPECT_EQ(frameOf(bullet).left(), frameOf(lineOf(words("One"))).left());
    EXPECT_EQ(frameOf(words("One")).right(), frameOf(lineOf(words("One"))).right());
}

TEST_F(MessageLayout, OfAnItemThatIsLongGoesOnBelowItsBeginning)
{
    window().resize(480, 2'000);
    open("- " + std::string(2'000, 'a') + std::string(20, 'b'));
    EXPECT_EQ(names(Role::StaticText).count(QStringLiteral("•")), 1);
    EXPECT_EQ(frameOf(words("bbbbbbbbbbbbbbbbbbbb")).left(), frameOf(words("•")).right() + 7);
}

TEST_F(MessageLayout, OfANumberedListCountsInSecondaryFromOne)
{
    open(R"(7. One\n7. Two)");
    EXPECT_EQ(gapBelow(words("One"), words("Two")), 5);
    for (const auto* const number : {"1.", "2."}) EXPECT_EQ(colorOf(letterOf(number)), light::secondary);
    EXPECT_EQ(gapBeside(words("1."), words("One")), 7);
    EXPECT_NEAR(baselineOf(letterOf("2.")), baselineOf(words("Two")), 0.5);
}

TEST_F(MessageLayout, OfAQuoteIsABarAsTallAsItsTextTenPointsBeforeIt)
{
    window().resize(480, 600);
    open(R"(> One that is so long that it goes on in a second line where the window has no room for all of it)");
    const auto& text
        = words("One that is so long that it goes on in a second line where the window has no room for all of it");
    const auto& bar = *partOf(lineOf(text), "width", 3.0);
    EXPECT_GT(text.property("lineCount").toInt(), 1);
    EXPECT_EQ(frameOf(bar).height(), frameOf(text).height());
    EXPECT_EQ(frameOf(bar).top(), frameOf(text).top());
    EXPECT_EQ(gapBeside(bar, text), 10);
    EXPECT_EQ(colorOf(bar), light::secondary);
    EXPECT_EQ(colorOf(text), light::secondary);
    EXPECT_EQ(frameOf(text).right(), frameOf(lineOf(text)).right());
}

TEST_F(MessageLayout, OfAnItemAndAQuoteBeginsAtTheMarkInWhateverScript)
{
    open(R"(- שגיאות\n> שגיאות)");
    const auto texts = partsOf(rows(), "text", words("שגיאות").property("text"));
    ASSERT_EQ(texts.size(), 2);
    for (const auto* const text : texts) EXPECT_LT(inkOf(*text).left() - frameOf(*text).left(), 5);
}

TEST_F(MessageLayout, DrawsInlineMarkupAndKeepsLineEndsAndBlanks)
{
    open(R"(plain   **strong** *slanted* ~~struck~~ `code`\nbelow)");
    const auto& text = words("plain   strong slanted struck code\nbelow");
    EXPECT_EQ(text.property("lineCount").toInt(), 2);
    std::map<std::string, QTextCharFormat> drawn;
    const auto* const document = text.property("textDocument").value<QQuickTextDocument*>()->textDocument();
    for (auto block = document->begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece)
            drawn[piece.fragment().text().simplified().toStdString()] = piece.fragment().charFormat();
    }
    EXPECT_EQ(drawn.at("strong").fontWeight(), QFont::Bold);
    EXPECT_TRUE(drawn.at("slanted").fontItalic());
    EXPECT_TRUE(drawn.at("struck").fontStrikeOut());
    EXPECT_LT(drawn.at("code").font().pointSizeF(), drawn.at("slanted").font().pointSizeF());
}

/// Shows the program in the test's own font, in which "1" is narrower than every other digit.
class FontWithANarrowOne {
protected:
    FontWithANarrowOne()
    {
        QFont font = before_;
        const auto id = QFontDatabase::addApplicationFontFromData(QByteArray::fromStdString(written()));
        font.setFamilies(QFontDatabase::applicationFontFamilies(id));
        QGuiApplication::setFont(font);
    }
    ~FontWithANarrowOne() { QGuiApplication::setFont(before_); }

private:
    static std::string written()
    {
        std::string font = "STARTFONT 2.1\nFONT -test-Narrow One-Medium-R-Normal--10-100-75-75-P-60-ISO10646-1\n"
                           "SIZE 10 75 75\nFONTBOUNDINGBOX 8 8 0 0\nSTARTPROPERTIES 6\nFAMILY_NAME \"Narrow One\"\n"
                           "FONT_ASCENT 8\nFONT_DESCENT 2\nPIXEL_SIZE 10\nCHARSET_REGISTRY \"ISO10646\"\n"
                           "CHARSET_ENCODING \"1\"\nENDPROPERTIES\nCHARS 95\n";
        for (int letter = ' '; letter <= '~'; ++letter) font += glyph(letter, letter == '1' ? 3 : 7);
        return font + "ENDFONT\n";
    }

    static std::string glyph(int letter, int width)
    {
        return "STARTCHAR " + std::to_string(letter) + "\nENCODING " + std::to_string(letter) + "\nSWIDTH "
            + std::to_string(width * 100) + " 0\nDWIDTH " + std::to_string(width) + " 0\nBBX " + std::to_string(width)
            + " 8 0 0\nBITMAP\n80\n80\n80\n80\n80\n80\n80\n80\nENDCHAR\n";
    }

    QFont before_ = QGuiApplication::font();
};

class NumbersOfAList : public FontWithANarrowOne, public MessageLayout {};

TEST_F(NumbersOfAList, HaveDigitsOfEqualWidth)
{
    ASSERT_LT(QFontMetricsF(QGuiApplication::font()).horizontalAdvance('1'),
        QFontMetricsF(QGuiApplication::font()).horizontalAdvance('2'));
    window().resize(760, 900);
    std::string items;
    for (int number = 1; number <= 12; ++number) items += "1. item " + std::to_string(number) + R"(\n)";
    open(items);
    EXPECT_EQ(words("1.").width(), words("2.").width());
    EXPECT_EQ(words("11.").width(), words("12.").width());
    EXPECT_EQ(frameOf(words("item 11")).left(), frameOf(words("item 12")).left());
    EXPECT_EQ(gapBeside(words("11."), words("item 11")), 7);
}

}  // namespace

}  // namespace larkspan
