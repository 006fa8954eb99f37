#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Contrast.h"
#include "KitWindow.h"
#include "Measures.h"

namespace larkspan {

namespace {

/// One piece of the kit on a card, measured in the picture that the user sees.
class PieceOfTheKit : public KitWindow {
protected:
    PieceOfTheKit(const QString& piece, bool isDark)
        : KitWindow(QStringLiteral(R"(
            color: Theme.card
            Binding { target: Theme; property: "isDark"; value: %1 }
            Pressable { objectName: "before"; width: 40; height: 40 }
            Item {
                x: 100
                y: 100
                width: 300
                height: 200
                %2
            })")
                  .arg(isDark ? QStringLiteral("true") : QStringLiteral("false"), piece))
    {
        item(QStringLiteral("before")).forceActiveFocus(Qt::TabFocusReason);
        settle();
    }

    QQuickItem& it() const { return item(QStringLiteral("it")); }
    QPoint middle() const { return frameOf(it()).center().toPoint(); }

    /// The colour `inwards` points from its left edge, at half its height.
    QColor at(int inwards) const { return colorAt({static_cast<int>(frameOf(it()).left()) + inwards, middle().y()}); }
    QColor colorAt(QPoint place) const { return window().grabWindow().pixelColor(place); }

    void point(QPoint place)
    {
        // Qt drops a move to where an earlier test has left the pointer.
        QTest::mouseMove(&window(), place + QPoint(1, 0));
        QTest::mouseMove(&window(), place);
        settle();
    }
    void hold()
    {
        point(middle());
        QTest::mousePress(&window(), Qt::LeftButton, {}, middle());
        settle();
    }
};

struct Control {
    std::string name;
    std::string qml;

    friend void PrintTo(const Control& control, std::ostream* stream) { *stream << control.name; }
};

const std::vector<Control>& buttons()
{
    static const std::vector<Control> all{
        {"Plain", R"(CommandButton { objectName: "it"; text: "It" })"},
        {"Prominent", R"(CommandButton { objectName: "it"; text: "It"; isProminent: true })"},
        {"Green", R"(CommandButton { objectName: "it"; text: "It"; tone: 2 })"},
        {"ProminentGreen", R"(CommandButton { objectName: "it"; text: "It"; tone: 2; isProminent: true })"},
        {"Destructive", R"(CommandButton { objectName: "it"; text: "It"; isDestructive: true })"},
    };
    return all;
}

const std::vector<Control>& fields()
{
    static const std::vector<Control> all{
        {"Entry", R"(TextEntry { objectName: "it"; width: 200; name: "It" })"},
        {"Secret", R"(SecretField { objectName: "it"; width: 200; name: "It" })"},
    };
    return all;
}

class Piece : public testing::TestWithParam<std::tuple<Control, bool>>, public PieceOfTheKit {
protected:
    Piece()
        : PieceOfTheKit(QString::fromStdString(std::get<0>(GetParam()).qml), std::get<1>(GetParam()))
    {
    }

    void expectAnEdge(const char* state)
    {
        EXPECT_GE(contrast(at(0), at(-1)), 3.0) << state << ": " << at(0).name().toStdString();
    }
};

const auto nameOfPiece = [](const auto& instance) {
    return std::get<0>(instance.param).name + (std::get<1>(instance.param) ? "InDark" : "InLight");
};

class ButtonOnScreen : public Piece {};
class FieldOnScreen : public Piece {};

TEST_P(ButtonOnScreen, HasAnEdgeAtRestHoveredAndPressed)
{
    expectAnEdge("at rest");
    point(middle());
    expectAnEdge("hovered");
    hold();
    expectAnEdge("pressed");
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, middle());
}

TEST_P(ButtonOnScreen, IsReadAtRestHoveredPressedAndDisabled)
{
    const auto& label = *partOf(it(), "text", QStringLiteral("It"));
    EXPECT_GE(contrast(colorOf(label), at(4)), 4.5);
    point(middle());
    EXPECT_GE(contrast(colorOf(label), at(4)), 4.5);
    hold();
    EXPECT_GE(contrast(colorOf(label), at(4)), 4.5);
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, middle());
    it().setEnabled(false);
    settle();
    EXPECT_EQ(it().opacity(), 1);
    EXPECT_GE(contrast(colorOf(label), at(4)), 3.0);
}

TEST_P(ButtonOnScreen, ChangesItsLookUnderThePointerAndAgainWhilePressed)
{
    const auto atRest = at(4);
    point(middle());
    const auto hovered = at(4);
    EXPECT_NE(hovered, atRest);
    hold();
    EXPECT_NE(at(4), hovered);
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, middle());
}

TEST_P(ButtonOnScreen, HasItsRingTwoPointsAwayFromIt)
{
    press(Qt::Key_Tab);
    // The first item that could have a ring is the first that asks for the user's hand.
    press(Qt::Key_F12);
    ASSERT_TRUE(it().hasActiveFocus());
    const auto card = at(-7);
    EXPECT_GE(contrast(at(-4), card), 3.0);
    EXPECT_EQ(at(-3), at(-4));
    EXPECT_EQ(at(-2), card);
    EXPECT_EQ(at(-1), card);
    expectAnEdge("focused");
}

INSTANTIATE_TEST_SUITE_P(
    Kit, ButtonOnScreen, testing::Combine(testing::ValuesIn(buttons()), testing::Bool()), nameOfPiece);

TEST_P(FieldOnScreen, IsFilledAsACardWithinAnEdge)
{
    expectAnEdge("at rest");
    EXPECT_EQ(at(4), at(-4));
}

TEST_P(FieldOnScreen, ShowsThatThePointerIsOverIt)
{
    const auto atRest = at(0);
    point(middle());
    EXPECT_GE(contrast(at(0), at(-1)), contrast(atRest, at(-1)) + 1);
    point({2, 430});
    EXPECT_EQ(at(0), atRest);
}

TEST_P(FieldOnScreen, HasItsRingInPlaceOfItsEdgeWhileItHasTheFocus)
{
    press(Qt::Key_Tab);
    ASSERT_TRUE(it().hasActiveFocus());
    EXPECT_EQ(at(1), at(0));
    expectAnEdge("focused");
    EXPECT_GE(contrast(at(1), at(3)), 3.0);
}

INSTANTIATE_TEST_SUITE_P(
    Kit, FieldOnScreen, testing::Combine(testing::ValuesIn(fields()), testing::Bool()), nameOfPiece);

class OtherPiece : public testing::TestWithParam<bool>, public PieceOfTheKit {
protected:
    explicit OtherPiece(const char* piece)
        : PieceOfTheKit(QString::fromUtf8(piece), GetParam())
    {
    }
};

class SwitchOnScreen : public OtherPiece {
protected:
    SwitchOnScreen()
        : OtherPiece(R"(Toggle { objectName: "it"; width: 200; text: "It"; isOn: false; onClicked: isOn = !isOn })")
    {
    }

    QPoint track() const { return {static_cast<int>(frameOf(it()).right()) - 1, middle().y()}; }
    QColor edge() const { return colorAt(track()); }
    QColor beside() const { return colorAt(track() + QPoint(3, 0)); }
};

TEST_P(SwitchOnScreen, HasAnEdgeOffAndOnAndUnderThePointer)
{
    EXPECT_GE(contrast(edge(), beside()), 3.0) << "off";
    const auto off = edge();
    point(middle());
    EXPECT_GE(contrast(edge(), beside()), 3.0) << "hovered";
    EXPECT_NE(edge(), off);
    QTest::mouseClick(&window(), Qt::LeftButton, {}, middle());
    point({2, 430});
    EXPECT_GE(contrast(edge(), beside()), 3.0) << "on";
}

TEST_P(SwitchOnScreen, IsReadWhileDisabled)
{
    it().setEnabled(false);
    settle();
    EXPECT_GE(contrast(colorOf(*partOf(it(), "text", QStringLiteral("It"))), at(-2)), 3.0);
}

INSTANTIATE_TEST_SUITE_P(Kit, SwitchOnScreen, testing::Bool());

class SegmentsOnScreen : public OtherPiece {
protected:
    SegmentsOnScreen()
        : OtherPiece(R"(SegmentedPicker {
            objectName: "it"; width: 300; name: "It"; segments: ["One", "Two"]; selected: 0 })")
    {
    }
};

TEST_P(SegmentsOnScreen, TheChosenOneHasAFillAndAnEdgeThatShow)
{
    const auto track = at(2);
    EXPECT_GE(contrast(at(4), track), 3.0) << "its edge";
    EXPECT_GE(contrast(at(8), track), 1.1) << "its fill";
    if (GetParam()) {
        EXPECT_GT(at(8).lightnessF(), track.lightnessF()) << "it is nearer than its track";
    }
}

INSTANTIATE_TEST_SUITE_P(Kit, SegmentsOnScreen, testing::Bool());

class RowOnScreen : public OtherPiece {
protected:
    RowOnScreen()
        : OtherPiece(R"(CardRow {
            id: row
            objectName: "it"; width: 300; height: 60; index: 0; name: "It"
            property pill given
            contentItem: Item {
                Pill { objectName: "pill"; x: 40; width: 100; height: 20; pill: row.given }
            }
        })")
    {
    }
};

TEST_P(RowOnScreen, ItsPillKeepsItsGroundHoveredAndPressed)
{
    const auto pill = frameOf(item(QStringLiteral("pill"))).center().toPoint();
    const auto ground = colorAt(pill);
    const auto row = at(20);
    EXPECT_NE(ground, row);
    point(middle());
    EXPECT_NE(at(20), row);
    EXPECT_EQ(colorAt(pill), ground);
    hold();
    EXPECT_EQ(colorAt(pill), ground);
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, middle());
}

TEST_P(RowOnScreen, FadesAsAButtonDoes)
{
    setProperty("hasMotion", true);
    auto& ground = *partOf(it(), "radius", 8);
    const auto strength = [&ground] { return colorOf(ground).alphaF(); };
    bool hasFaded = false;
    // A busy machine may show no frame of one fade.
    for (int attempt = 0; attempt < 5 && !hasFaded; ++attempt) {
        point({2, 430});
        ASSERT_TRUE(QTest::qWaitFor([&] { return strength() == 0; }, 2'000));
        QTest::mouseMove(&window(), middle());
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                hasFaded = hasFaded || (strength() > 0 && strength() < 0.055);
                return strength() > 0.055;
            },
            2'000));
    }
    EXPECT_TRUE(hasFaded);
}

INSTANTIATE_TEST_SUITE_P(Kit, RowOnScreen, testing::Bool());

class BarOnScreen : public OtherPiece {
protected:
    BarOnScreen()
        : OtherPiece(R"(Flickable {
            id: view
            objectName: "it"; width: 200; height: 200; contentHeight: 400
            ScrollBarLoader { flickable: view }
        })")
    {
    }

    /// The points of the handle in a line across it.
    int width() const
    {
        const auto picture = window().grabWindow();
        const auto y = static_cast<int>(frameOf(it()).top()) + 40;
        const auto right = static_cast<int>(frameOf(it()).right());
        int count = 0;
        for (int x = right - 16; x < right; ++x) count += picture.pixelColor(x, y) != picture.pixelColor(2, 430);
        return count;
    }
    QPoint handle() const { return frameOf(it()).topRight().toPoint() + QPoint(-4, 40); }
};

TEST_P(BarOnScreen, IsSeenAtRestAndIsWiderUnderThePointer)
{
    EXPECT_GE(contrast(colorAt(handle()), colorAt({2, 430})), 3.0);
    EXPECT_EQ(width(), 4);
    point(handle());
    EXPECT_EQ(width(), 8);
    EXPECT_GE(contrast(colorAt(handle()), colorAt({2, 430})), 3.0);
    point({2, 430});
    EXPECT_EQ(width(), 4);
}

INSTANTIATE_TEST_SUITE_P(Kit, BarOnScreen, testing::Bool());

}  // namespace

}  // namespace larkspan
