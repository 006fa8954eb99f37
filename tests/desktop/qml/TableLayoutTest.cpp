#include <QFont>
#include <QGuiApplication>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ChosenSize.h"
#include "Measures.h"
#include "MessageOnScreen.h"

namespace larkspan {

namespace {

class TableLayout : public MessageOnScreen {
protected:
    /// The line of a table that contains a text.
    static const QQuickItem& lineOf(const QQuickItem& text)
    {
        const auto* line = &text;
        while (!line->property("contentX").isValid()) line = line->parentItem();
        return *line;
    }

    /// Below the headers.
    const QQuickItem& divider() const { return *partOf(*tableLines().at(1), "color", QColor("#e3e6ea")); }

    /// From the end of a column's widest text to the next column; a text has up to two points of room.
    static double inkGap(const QQuickItem& left, const QQuickItem& right)
    {
        return frameOf(right).left() - (frameOf(left).left() + left.property("contentWidth").toReal());
    }
};

TEST_F(TableLayout, HasItsHeadersInSmallSemiboldAndItsCellsALittleLarger)
{
    open(R"(Region|Errors\n---|---\neu|12\n)");
    for (const auto* const header : {"Region", "Errors"}) {
        EXPECT_EQ(sizeOf(words(header)), type::caption) << header;
        EXPECT_EQ(fontOf(words(header)).weight(), QFont::DemiBold) << header;
        EXPECT_EQ(colorOf(words(header)), light::secondary) << header;
    }
    for (const auto* const cell : {"eu", "12"}) {
        EXPECT_EQ(sizeOf(words(cell)), type::subheadline) << cell;
        EXPECT_EQ(fontOf(words(cell)).weight(), QFont::Normal) << cell;
        EXPECT_EQ(colorOf(words(cell)), light::primary) << cell;
    }
}

TEST_F(TableLayout, HasSevenPointsBetweenRowsAndAroundItsDivider)
{
    open(R"(Region|Errors\n---|---\neu|12\nus|3\n)");
    EXPECT_EQ(gapBelow(words("Region"), divider()), 7);
    EXPECT_EQ(gapBelow(divider(), words("eu")), 7);
    EXPECT_EQ(gapBelow(words("eu"), words("us")), 7);
}

TEST_F(TableLayout, HasSixteenPointsBetweenColumnsAsWideAsTheirWidestText)
{
    open(R"(Region|Errors|Since\n---|---|---\neu-central-1|12|09:30\n**a strong western one**|`some code`|10\n)");
    EXPECT_NEAR(inkGap(words("a strong western one"), words("some code")), 17, 1);
    EXPECT_NEAR(inkGap(words("some code"), words("10")), 17, 1);
    for (const auto* const widest : {"a strong western one", "some code"})
        EXPECT_EQ(words(widest).property("lineCount").toInt(), 1) << widest;
    EXPECT_EQ(frameOf(words("Errors")).left(), frameOf(words("12")).left());
    EXPECT_EQ(frameOf(words("12")).left(), frameOf(words("some code")).left());
    EXPECT_EQ(frameOf(words("Region")).left(), frameOf(lineOf(words("Region"))).left());
}

class SizeOfLetters : public testing::WithParamInterface<double>, public ChosenSize, public TableLayout {
protected:
    SizeOfLetters()
        : ChosenSize(GetParam())
    {
        window().resize(1'800, 1'200);
    }
};

TEST_P(SizeOfLetters, WrapsNoTextThatIsTheWidestOfItsColumn)
{
    const std::vector<std::string> texts{
        "eu-central", "08:15", "12 %", "Frankfurt", "W", "iiiii", "MMMM", "a.b.c", "x1", "long words", "1/2", "q, r"};
    std::string header;
    std::string line;
    std::string row;
    for (const auto& text : texts) {
        header += "h|";
        line += "---|";
        row += text + "|";
    }
    open(header + R"(\n)" + line + R"(\n)" + row);
    for (const auto& text : texts) EXPECT_EQ(words(text.c_str()).property("lineCount").toInt(), 1) << text;
    for (std::size_t place = 1; place < texts.size(); ++place) {
        EXPECT_NEAR(inkGap(words(texts[place - 1].c_str()), words(texts[place].c_str())), 17, 1) << texts[place];
    }
}

INSTANTIATE_TEST_SUITE_P(Each, SizeOfLetters, testing::Values(9, 10, 10.5, 11, 13, 20));

TEST_F(TableLayout, HasSixteenPointsBehindAColumnWhoseHeaderIsItsWidestText)
{
    open(R"(Everything|Errors\n---|---\neu|12\n)");
    EXPECT_NEAR(inkGap(words("Everything"), words("Errors")), 17, 1);
}

TEST_F(TableLayout, HasNoColumnWiderThanItsMost)
{
    std::string table = R"(long|b\n---|---\n)";
    for (int row = 0; row < 3; ++row)
        table
            += "**many words** that go on and on in several lines of their cell|next " + std::to_string(row) + R"(\n)";
    open(table);
    EXPECT_EQ(frameOf(words("next 0")).left() - frameOf(words("long")).left(), 240 + 16);
}

TEST_F(TableLayout, HasADividerAsLongAsAllItsColumns)
{
    open(R"(Region|Errors\n---|---\neu|12\n)");
    const auto& line = lineOf(words("Region"));
    EXPECT_EQ(divider().width(), line.property("contentWidth").toReal());
    EXPECT_LT(divider().width(), line.width());
    EXPECT_EQ(frameOf(divider()).left(), frameOf(line).left());
}

TEST_F(TableLayout, HasADividerThatScrollsWithItsColumns)
{
    std::string wide;
    for (int column = 0; column < 12; ++column) wide += "a column with quite some words | ";
    open(wide + R"(\n---\n)" + wide);
    const auto before = frameOf(divider());
    EXPECT_GT(before.width(), lineOf(*tableLines().front()).width());
    rows().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    const auto place = tableLines().front()->property("contentX").toReal();
    EXPECT_GT(place, 0);
    EXPECT_EQ(frameOf(divider()), before.translated(-place, 0));
}

TEST_F(TableLayout, ScrollsWithoutIndicators)
{
    std::string wide;
    for (int column = 0; column < 12; ++column) wide += "a column with quite some words | ";
    open(wide + R"(\n---\n)" + wide);
    for (const auto* const line : tableLines()) {
        for (const auto* const part : line->findChildren<QQuickItem*>())
            EXPECT_FALSE(part->inherits("QQuickScrollBar") || part->inherits("QQuickScrollIndicator"));
    }
}

TEST_F(TableLayout, HasTwoPointsAboveItAndBelow)
{
    open(R"(before\n\na|b\n---\nc|d\n\nafter)");
    EXPECT_EQ(gapBelow(words("before"), words("a")), 12);
    EXPECT_EQ(gapBelow(words("c"), words("after")), 12);
}

class EndOfAMessage : public TableLayout {
protected:
    /// The space between the last text and the item below the message.
    double roomBelow(const char* message, const char* last)
    {
        open(message);
        const auto room = frameOf(*partOf(rows(), "isCompact", false)).top() - frameOf(words(last)).bottom();
        press(Qt::Key_Escape);
        return room;
    }
};

TEST_F(EndOfAMessage, HasTwoPointsMoreBelowATable)
{
    const auto usual = roomBelow("words", "words");
    EXPECT_EQ(roomBelow(R"(a|b\n---\nc|d)", "c"), usual + 2);
    EXPECT_EQ(roomBelow(R"(a|b\n---\nc|d\n\nwords)", "words"), usual);
    EXPECT_EQ(roomBelow(R"(a|b\n---)", "a"), usual + 7 + 1 + 2) << "without rows, its divider is the last";
}

TEST_F(TableLayout, ShowsNoCellBeyondItsHeadersAndAnEmptyOneWhereARowIsShort)
{
    open(R"(a|b\n---|---\nc|d|beyond\nshort|\n)");
    EXPECT_FALSE(shows(QStringLiteral("beyond")));
    EXPECT_TRUE(shows(QStringLiteral("short")));
    EXPECT_EQ(frameOf(words("short")).left(), frameOf(words("c")).left());
}

}  // namespace

}  // namespace larkspan
