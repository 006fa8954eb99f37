#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

#include "KitWindow.h"

namespace larkspan {

namespace {

/// A screen with a field, a page over it and one over that, opened and left as a person would.
class PagesOfAWindow : public testing::Test, public KitWindow {
protected:
    PagesOfAWindow()
        : KitWindow(QStringLiteral(R"(
            property bool showsPage: false
            property bool showsSecond: false
            property int dismissals: 0

            PageStack {
                anchors.fill: parent

                ScreenFrame {
                    id: root
                    objectName: "root"
                    anchors.fill: parent
                    focus: true
                    title: "Root"
                    CommandButton { objectName: "first"; text: "First"; focus: true }
                    CommandButton { objectName: "opener"; y: 100; text: "Open"; onClicked: window.showsPage = true }
                }
                PushedPage {
                    id: page
                    isShown: window.showsPage
                    beneath: root
                    onDismissed: { window.dismissals += 1; window.showsPage = false }
                    sourceComponent: ScreenFrame {
                        objectName: "page"
                        title: "Page"
                        canGoBack: true
                        onWentBack: page.goBack()
                        CommandButton { objectName: "inPage"; text: "In page"; focus: true }
                    }
                }
                PushedPage {
                    isShown: window.showsSecond
                    beneath: page
                    onDismissed: window.showsSecond = false
                    sourceComponent: ScreenFrame { objectName: "second"; title: "Second"; focus: true }
                }
            })"))
    {
    }

    void open()
    {
        item(QStringLiteral("opener")).forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Space);
    }

    bool hasPage() const { return window().findChild<QQuickItem*>(QStringLiteral("page")) != nullptr; }
    bool isVisible(const char* name) const { return item(QString::fromLatin1(name)).isVisible(); }
    QString focused() const
    {
        return window().activeFocusItem() ? window().activeFocusItem()->objectName() : QString();
    }
};

TEST_F(PagesOfAWindow, APageIsMadeWhenItIsShownAndTakesTheFocus)
{
    EXPECT_FALSE(hasPage());
    open();
    EXPECT_TRUE(isVisible("page"));
    EXPECT_EQ(focused(), QStringLiteral("inPage"));
}

TEST_F(PagesOfAWindow, WhatLiesBeneathIsNeitherSeenNorReached)
{
    open();
    EXPECT_FALSE(isVisible("root"));
    for (int step = 0; step < 6; ++step) {
        press(Qt::Key_Tab);
        const auto* holder = window().activeFocusItem();
        EXPECT_TRUE(item(QStringLiteral("page")).isAncestorOf(holder)) << holder->objectName().toStdString();
    }
}

struct WayBack {
    const char* name;
    void (*go)(KitWindow& window);
};

class WaysBack : public PagesOfAWindow, public testing::WithParamInterface<WayBack> {};

TEST_P(WaysBack, LetGoOfThePageOnceAndGiveTheFocusBack)
{
    open();
    GetParam().go(*this);
    EXPECT_EQ(property("dismissals").toInt(), 1);
    EXPECT_FALSE(hasPage());
    EXPECT_TRUE(isVisible("root"));
    EXPECT_EQ(focused(), QStringLiteral("opener"));
}

INSTANTIATE_TEST_SUITE_P(Each, WaysBack,
    testing::Values(WayBack{"Escape", [](KitWindow& window) { window.press(Qt::Key_Escape); }},
        WayBack{"AltLeft", [](KitWindow& window) { window.press(Qt::Key_Left, Qt::AltModifier); }},
        WayBack{"BackKey", [](KitWindow& window) { window.press(Qt::Key_Back); }},
        WayBack{"MouseBackButton",
            [](KitWindow& window) {
                QTest::mouseClick(&window.window(), Qt::BackButton, {}, QPoint(240, 300));
                window.settle();
            }},
        WayBack{"ButtonOfTheHeader",
            [](KitWindow& window) {
                QTest::mouseClick(&window.window(), Qt::LeftButton, {}, QPoint(28, 24));
                window.settle();
            }}),
    [](const auto& way) { return way.param.name; });

TEST_F(PagesOfAWindow, PressedTwiceQuicklyGoesBackOnce)
{
    open();
    QTest::keyClick(&window(), Qt::Key_Escape);
    QTest::keyClick(&window(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(property("dismissals").toInt(), 1);
}

TEST_F(PagesOfAWindow, APageGoesAtOnceSoThatWhatIsOpenedNextStays)
{
    open();
    setProperty("hasMotion", true);
    QTest::keyClick(&window(), Qt::Key_Escape);
    QCoreApplication::processEvents();
    EXPECT_FALSE(hasPage());
    EXPECT_TRUE(isVisible("root"));
    EXPECT_EQ(focused(), QStringLiteral("opener"));
    EXPECT_EQ(property("dismissals").toInt(), 1);

    QTest::keyClick(&window(), Qt::Key_Space);
    QTest::qWait(500);
    EXPECT_TRUE(hasPage());
    EXPECT_EQ(property("dismissals").toInt(), 1);
}

TEST_F(PagesOfAWindow, APageComesInATransition)
{
    setProperty("hasMotion", true);
    open();
    EXPECT_TRUE(hasPage());
    EXPECT_EQ(focused(), QStringLiteral("inPage"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isVisible("root"); }, 2'000));
}

TEST_F(PagesOfAWindow, APageWhoseOwnerTakesItAwayGoesAtOnceAndGivesTheFocusBack)
{
    open();
    setProperty("showsPage", false);
    EXPECT_FALSE(hasPage());
    EXPECT_TRUE(isVisible("root"));
    EXPECT_EQ(focused(), QStringLiteral("opener"));
    EXPECT_EQ(property("dismissals").toInt(), 0);
}

TEST_F(PagesOfAWindow, TheUppermostPageIsLeftFirst)
{
    open();
    setProperty("showsSecond", true);
    EXPECT_FALSE(isVisible("page"));
    press(Qt::Key_Escape);
    EXPECT_EQ(property("dismissals").toInt(), 0);
    EXPECT_TRUE(isVisible("page"));
    EXPECT_EQ(focused(), QStringLiteral("inPage"));
    press(Qt::Key_Escape);
    EXPECT_EQ(property("dismissals").toInt(), 1);
}

TEST_F(PagesOfAWindow, WithoutAPageEscapeAndAltLeftDoNothing)
{
    press(Qt::Key_Escape);
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(isVisible("root"));
    EXPECT_EQ(property("dismissals").toInt(), 0);
}

TEST_F(PagesOfAWindow, AClickOnThePageDoesNotReachWhatLiesBeneath)
{
    open();
    setProperty("dismissals", 0);
    const auto& page = item(QStringLiteral("page"));
    QTest::mouseClick(&window(), Qt::LeftButton, {}, QPoint(200, 300));
    settle();
    EXPECT_TRUE(page.isVisible());
    EXPECT_TRUE(page.isAncestorOf(window().activeFocusItem()));
}

}  // namespace

}  // namespace larkspan
