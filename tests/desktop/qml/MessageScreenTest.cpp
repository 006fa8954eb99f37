#include <QCoreApplication>
#include <QQuickItem>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <ctime>
#include <functional>

#include "MessageOnScreen.h"

namespace larkspan {

namespace {

std::string repeated(std::string_view text, std::size_t times)
{
    std::string answer;
    for (; times > 0; --times) answer += text;
    return answer;
}

struct LongMessage {
    const char* name;
    std::function<std::string()> text;
};

void PrintTo(const LongMessage& message, std::ostream* out)
{
    *out << message.name;
}

class LongMessageOnScreen : public MessageOnScreen, public testing::WithParamInterface<LongMessage> {};

/// A single text item takes half a minute to lay out a megabyte without a place to break.
TEST_P(LongMessageOnScreen, IsShownAndScrolledToItsEndInBoundedTimeAndItems)
{
    const auto message = GetParam().text();
    const auto begin = std::clock();
    open(message);
    rows().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    EXPECT_LT(std::clock() - begin, 4 * CLOCKS_PER_SEC);
    const auto shown = names(Role::ListItem).size();
    EXPECT_GT(shown, 0);
    EXPECT_LT(shown, 100);
}

INSTANTIATE_TEST_SUITE_P(Each, LongMessageOnScreen,
    testing::Values(LongMessage{"AMegabyteOfParagraphs",
                        [] { return repeated(R"(We see **errors** on sign-in and look into them.\n\n)", 20'000); }},
        LongMessage{"AMegabyteInOneParagraph", [] { return repeated("Most sign-ins succeed again. ", 36'000); }},
        LongMessage{"AMegabyteWithoutAPlaceToBreak", [] { return std::string(1'000'000, 'x'); }},
        LongMessage{"Asterisks", [] { return std::string(100'000, '*'); }},
        LongMessage{"Brackets", [] { return std::string(100'000, '['); }},
        LongMessage{"Pipes", [] { return std::string(100'000, '|'); }},
        LongMessage{
            "PipesOfATable", [] { return "a" + std::string(100'000, '|') + R"(b\n---\n)" + std::string(1'000, '|'); }}),
    [](const auto& message) { return message.param.name; });

class TablesOnScreen : public MessageOnScreen {
protected:
    TablesOnScreen()
    {
        const auto wide = repeated("a column with quite some words | ", 12);
        const auto table = wide + R"(\n---\n)" + wide + R"(\n)" + wide;
        window().resize(760, 1'000);
        open(table + R"(\n\nbetween\n\n)" + table);
    }

    /// The scroll position of each line of the two tables, from top to bottom.
    std::vector<qreal> places() const
    {
        std::vector<qreal> found;
        for (const auto* line : tableLines()) found.push_back(line->property("contentX").toReal());
        return found;
    }

    void wheelSideways(const QQuickItem& line)
    {
        const auto at = line.mapToScene({20, 5});
        wheel(at, Qt::ScrollBegin, 0);
        for (int update = 0; update < 3; ++update) wheel(at, Qt::ScrollUpdate, 30);
        wheel(at, Qt::ScrollEnd, 0);
        settle();
    }

private:
    void wheel(const QPointF& at, Qt::ScrollPhase phase, int distance)
    {
        QWheelEvent event(at, window().mapToGlobal(at), {-distance, 0}, {-distance, 0}, Qt::NoButton, Qt::NoModifier,
            phase, false, Qt::MouseEventSynthesizedBySystem);
        event.setTimestamp(time_ += 20);
        QCoreApplication::sendEvent(&window(), &event);
    }

    quint64 time_ = 1'000;
};

TEST_F(TablesOnScreen, ScrollAllRowsOfATableSidewaysAndNotTheOtherTable)
{
    ASSERT_EQ(places(), std::vector<qreal>(8, 0));
    wheelSideways(*tableLines()[4]);
    const auto second = places()[4];
    EXPECT_GT(second, 0);
    EXPECT_EQ(places(), (std::vector<qreal>{0, 0, 0, 0, second, second, second, second}));
    rows().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    const auto first = places()[0];
    EXPECT_GT(first, second);
    EXPECT_EQ(places(), (std::vector<qreal>{first, first, first, first, second, second, second, second}));
}

TEST_F(TablesOnScreen, AreScrolledSidewaysByTheArrowsUpToTheirEnds)
{
    rows().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    const auto place = places()[0];
    EXPECT_GT(place, 0);
    EXPECT_EQ(places(), (std::vector<qreal>{place, place, place, place, 0, 0, 0, 0}));
    for (int step = 0; step < 30; ++step) press(Qt::Key_Right);
    const auto& line = *tableLines()[0];
    EXPECT_EQ(places()[0], line.property("contentWidth").toReal() - line.width());
    for (int step = 0; step < 30; ++step) press(Qt::Key_Left);
    EXPECT_EQ(places(), std::vector<qreal>(8, 0));
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(names(Role::ListItem).size(), 1) << "it is the way back";
}

TEST_F(MessageOnScreen, AColumnIsAsWideAsItsWidestTextIsDrawnInWhateverScript)
{
    for (const auto* const other : {"инцидент в сети", "iiiiiiiiiiiiiiiiiiiiiiiiii", "語語語"}) {
        const QString longer = QStringLiteral("an old WARNING there");
        open("a|\\n---\\n" + std::string(other) + "|\\n" + longer.toStdString() + "|\\n");
        const auto& cell = item(Role::StaticText, longer);
        EXPECT_EQ(cell.property("lineCount").toInt(), 1) << other;
        press(Qt::Key_Escape);
    }
}

}  // namespace

}  // namespace larkspan
