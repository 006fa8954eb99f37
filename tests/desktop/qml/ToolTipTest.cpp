#include <QTest>

#include <gtest/gtest.h>

#include "KitWindow.h"

namespace larkspan {

namespace {

class HelpOfAButton : public testing::Test, public KitWindow {
protected:
    HelpOfAButton()
        : KitWindow(QStringLiteral(R"(
            property string words: "Add one"
            property bool isMenuOpen: false
            ToolbarButton { objectName: "button"; x: 100; y: 100; symbol: "plus"; help: window.words; isMenuOpen: window.isMenuOpen })"))
    {
        point(beside);
    }

    /// The tool tips that are up.
    QStringList tips() const
    {
        QStringList found;
        for (const auto* const each : window().findChildren<QObject*>()) {
            if (each->inherits("QQuickToolTip") && each->property("visible").toBool()) {
                found << each->property("text").toString();
            }
        }
        return found;
    }

    bool comeToBe(const QStringList& expected)
    {
        return QTest::qWaitFor([this, &expected] { return tips() == expected; }, 3'000);
    }

    void point(QPoint place) { QTest::mouseMove(&window(), place); }

    static constexpr QPoint onIt{110, 110};
    static constexpr QPoint beside{300, 300};
};

TEST_F(HelpOfAButton, ComesUpAfterAWhileUnderThePointerAndGoesWithIt)
{
    point(onIt);
    QTest::qWait(100);
    EXPECT_EQ(tips(), QStringList()) << "a pointer that only passes";
    EXPECT_TRUE(comeToBe({"Add one"}));
    point(beside);
    EXPECT_TRUE(comeToBe({}));
    point(onIt);
    EXPECT_TRUE(comeToBe({"Add one"})) << "a second time";
}

TEST_F(HelpOfAButton, FollowsItsWords)
{
    point(onIt);
    EXPECT_TRUE(comeToBe({"Add one"}));
    setProperty("words", QStringLiteral("Add another"));
    EXPECT_EQ(tips(), QStringList("Add another"));
}

TEST_F(HelpOfAButton, GoesAsSoonAsTheButtonIsPressedOrItsMenuIsOpen)
{
    point(onIt);
    EXPECT_TRUE(comeToBe({"Add one"}));
    QTest::mousePress(&window(), Qt::LeftButton, {}, onIt);
    EXPECT_EQ(tips(), QStringList());
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, onIt);
    EXPECT_TRUE(comeToBe({"Add one"}));
    setProperty("isMenuOpen", true);
    EXPECT_EQ(tips(), QStringList());
}

TEST_F(HelpOfAButton, StandsBelowItInTheWindow)
{
    point(onIt);
    ASSERT_TRUE(comeToBe({"Add one"}));
    settle();
    for (auto* const each : window().findChildren<QObject*>()) {
        if (!each->inherits("QQuickToolTip") || !each->property("visible").toBool()) continue;
        const auto* const content = each->property("contentItem").value<QQuickItem*>()->parentItem();
        const auto place = content->mapRectToScene({0, 0, content->width(), content->height()});
        const auto& button = item(QStringLiteral("button"));
        EXPECT_GE(place.top(), button.y() + button.height());
        EXPECT_LE(place.top(), button.y() + button.height() + 10);
        EXPECT_NEAR(place.center().x(), button.x() + button.width() / 2, 1);
    }
}

}  // namespace

}  // namespace larkspan
