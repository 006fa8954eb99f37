#include <QTest>

#include <gtest/gtest.h>

#include "KitWindow.h"
#include "Measures.h"

namespace larkspan {

namespace {

class BoxLayout : public testing::Test, public KitWindow {
protected:
    BoxLayout()
        : KitWindow(QStringLiteral(R"(
            Column {
                CommandButton { objectName: "before"; text: "Before" }
                TextBox { objectName: "box"; width: 300; name: "Text"; Component.onCompleted: show("Words") }
            })"))
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

TEST_F(BoxLayout, HasAThinRoundedOutlineInSecondaryAtThreeTenths)
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

TEST_F(BoxLayout, HasFourPointsAroundItsText)
{
    const auto& area = *partOf(box(), "text", QStringLiteral("Words"));
    const auto place = box().mapRectFromScene(frameOf(area));
    EXPECT_EQ(place.left() + area.property("leftPadding").toReal(), 4);
    EXPECT_EQ(place.top() + area.property("topPadding").toReal(), 4);
    EXPECT_EQ(300 - place.right() + area.property("rightPadding").toReal(), 4);
    EXPECT_GE(box().height(), 100);
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
