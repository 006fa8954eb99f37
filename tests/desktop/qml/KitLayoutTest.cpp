#include <QTest>

#include <gtest/gtest.h>

#include <array>

#include "ChosenSize.h"
#include "KitWindow.h"
#include "Measures.h"

namespace larkspan {

namespace {

class BoxLayout : public testing::Test, public KitWindow {
protected:
    explicit BoxLayout(bool isTight = false, const QString& text = QStringLiteral("\"Words\""),
        const QString& height = QStringLiteral("implicitHeight"))
        : KitWindow(QStringLiteral(R"(
            Column {
                CommandButton { objectName: "before"; text: "Before" }
                TextBox {
                    objectName: "box"
                    width: 300
                    height: %3
                    name: "Text"
                    isTight: %1
                    Component.onCompleted: show(%2)
                }
            })")
                  .arg(isTight ? QStringLiteral("true") : QStringLiteral("false"), text, height))
    {
        item(QStringLiteral("before")).forceActiveFocus(Qt::TabFocusReason);
    }

    const QQuickItem& box() const { return item(QStringLiteral("box")); }

    struct Line {
        int width;
        QColor color;
        QRectF place;
        int radius;

        bool operator==(const Line&) const = default;
    };

    /// How far the text, where it is not scrolled, is from the left, top and right edges.
    std::array<double, 3> insets() const
    {
        const auto& area = *partOf(box(), "color", light::primary);
        const auto& view = *area.parentItem()->parentItem();
        const auto place = box().mapRectFromScene(frameOf(view));
        return {place.left() + area.property("leftPadding").toReal(),
            place.top() + area.property("topPadding").toReal(),
            300 - place.right() + area.property("rightPadding").toReal()};
    }

    /// Types more lines than the box can grow for.
    void fill()
    {
        press(Qt::Key_Tab);
        for (int line = 0; line < 30; ++line) press(Qt::Key_Return);
    }

    /// The lines around the box, in order of painting.
    std::vector<Line> lines() const
    {
        std::vector<Line> found;
        collect(box(), found);
        return found;
    }

private:
    void collect(const QQuickItem& item, std::vector<Line>& found) const
    {
        for (const auto* const child : item.childItems()) {
            const auto* const border = child->property("border").value<QObject*>();
            const int width = border ? border->property("width").toInt() : 0;
            if (child->isVisible() && width > 0)
                found.push_back({width, border->property("color").value<QColor>(),
                    box().mapRectFromScene(frameOf(*child)), child->property("radius").toInt()});
            collect(*child, found);
        }
    }
};

class TightBoxLayout : public BoxLayout {
protected:
    TightBoxLayout()
        : BoxLayout(true)
    {
    }
};

TEST_F(BoxLayout, HasTheInsetsAndTheEdgeOfAField)
{
    EXPECT_EQ(insets(), (std::array<double, 3>{12, 8, 12}));
    EXPECT_EQ(lines()[0].color, QColor("#868d97"));
    fill();
    EXPECT_EQ(insets(), (std::array<double, 3>{12, 8, 12})) << "which is clear of the scroll bar";
}

TEST_F(TightBoxLayout, HasAThinRoundedOutlineInSecondaryAtThreeTenths)
{
    const auto all = lines();
    ASSERT_EQ(all.size(), 1);
    EXPECT_EQ(all[0].width, 1);
    EXPECT_EQ(all[0].radius, 10);
    EXPECT_EQ(all[0].color.rgb(), light::secondary.rgb());
    EXPECT_NEAR(all[0].color.alphaF(), 0.3, 0.001);
    EXPECT_EQ(all[0].place, QRectF(0, 0, 300, box().height()));
}

TEST_F(BoxLayout, HasItsOutlineInFullUnderThePointer)
{
    QTest::mouseMove(&window(), frameOf(box()).center().toPoint());
    settle();
    EXPECT_EQ(lines()[0].color, light::secondary);
}

TEST_F(BoxLayout, IsFilledAsACard)
{
    EXPECT_EQ(window().grabWindow().pixelColor(frameOf(box()).center().toPoint()), light::card);
}

TEST_F(BoxLayout, HasItsRingOverTheOutlineWhileItHasTheFocus)
{
    const auto before = lines();
    press(Qt::Key_Tab);
    const auto all = lines();
    ASSERT_EQ(all.size(), 2);
    EXPECT_EQ(all[0], before[0]);
    EXPECT_EQ(all[1].width, 2);
    EXPECT_EQ(all[1].place, all[0].place);
    EXPECT_EQ(all[1].radius, all[0].radius);
    EXPECT_EQ(all[1].color, light::blue);
}

TEST_F(TightBoxLayout, HasFourPointsAroundItsText)
{
    EXPECT_EQ(insets(), (std::array<double, 3>{4, 4, 4}));
    EXPECT_GE(box().height(), 100);
}

TEST_F(TightBoxLayout, KeepsItsTextClearOfTheScrollBar)
{
    fill();
    EXPECT_EQ(insets(), (std::array<double, 3>{4, 4, 12}));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    EXPECT_EQ(insets(), (std::array<double, 3>{4, 4, 4}));
}

/// A box whose height is limited, and whose text is longer from the beginning.
class LongBoxLayout : public LargeLetters, public BoxLayout {
protected:
    LongBoxLayout()
        : BoxLayout(true, QStringLiteral(R"(Array(40).fill("Words that wrap").join(" ") + "\n\nEnd")"),
              QStringLiteral("Math.min(implicitHeight, 90)"))
    {
    }
};

TEST_F(LongBoxLayout, KeepsItsTextClearOfTheScrollBar)
{
    EXPECT_EQ(box().height(), 90);
    EXPECT_EQ(insets(), (std::array<double, 3>{4, 4, 12}));
}

class TitleBesideADot : public testing::Test, public KitWindow {
protected:
    TitleBesideADot()
        : KitWindow(QStringLiteral(R"(
            property string words
            Rectangle {
                anchors.fill: parent
                color: Theme.card
                MarqueeText { objectName: "title"; x: 30; width: 300; layoutHeight: 22; text: window.words }
            })"))
    {
    }
};

TEST_F(TitleBesideADot, StandsAtItsDotInWhateverScript)
{
    for (const auto* const words : {"Login", "שגיאות", "أخطاء الدخول"}) {
        setProperty("words", QString::fromUtf8(words));
        const auto ink = inkOf(item(QStringLiteral("title")));
        EXPECT_GT(ink.width(), 10) << words;
        EXPECT_LT(ink.left(), 30 + 5) << words;
    }
}

}  // namespace

}  // namespace larkspan
