#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

#include "KitWindow.h"
#include "Measures.h"

namespace larkspan {

namespace {

class SurfaceOnAWindow : public testing::Test, public KitWindow {
protected:
    SurfaceOnAWindow()
        : KitWindow(QStringLiteral("color: Theme.card\nSurface { x: 100; y: 100; width: 200; height: 150 }"))
        , picture_(window().grabWindow())
    {
    }

    int lightness(int x, int y) const { return picture_.pixelColor(x, y).lightness(); }

private:
    QImage picture_;
};

TEST_F(SurfaceOnAWindow, HasASoftShadowAroundItThatPartsItFromACardOfItsColour)
{
    EXPECT_LT(lightness(200, 253), 245) << "below";
    EXPECT_LT(lightness(200, 253), lightness(200, 262));
    EXPECT_LT(lightness(200, 262), lightness(200, 270));
    EXPECT_LT(lightness(96, 175), 250) << "beside";
    EXPECT_LT(lightness(304, 175), 250);
    EXPECT_EQ(lightness(200, 290), 255) << "far below";
    EXPECT_EQ(lightness(60, 175), 255);
    EXPECT_EQ(lightness(200, 175), 255) << "on it";
}

TEST(SurfaceOfAnySize, HasAnEvenShadow)
{
    KitWindow kit(QStringLiteral("color: Theme.card\nSurface { x: 100; y: 100; width: 200.45; height: 150.55 }"));
    const auto picture = kit.window().grabWindow();
    for (int x = 130; x < 270; ++x) {
        EXPECT_EQ(picture.pixelColor(x, 254), picture.pixelColor(x + 1, 254)) << x;
    }
    for (int y = 130; y < 220; ++y) {
        EXPECT_EQ(picture.pixelColor(97, y), picture.pixelColor(97, y + 1)) << y;
    }
}

/// A sheet over the window with a box as its content, and a dialog over that one.
class SheetOverAWindow : public testing::Test, public KitWindow {
protected:
    SheetOverAWindow()
        : KitWindow(QStringLiteral(R"(
            color: "#ffffff"
            property int boxHeight: 60
            property bool asks: false
            property bool isShown: false
            PopupLoader {
                id: loader
                isShown: window.isShown
                sourceComponent: Sheet {
                    objectName: "sheet"
                    title: "Sheet"
                    preferredWidth: 200
                    Rectangle { objectName: "box"; width: 100; height: window.boxHeight; color: "#123456" }
                    PopupLoader {
                        isShown: window.asks
                        sourceComponent: MessageDialog {
                            title: "Question"
                            CommandButton { text: "OK"; focus: true }
                        }
                    }
                }
            })"))
    {
    }

    void open() { setProperty("isShown", true); }
    QObject& sheet() const { return *window().findChild<QObject*>(QStringLiteral("sheet")); }
    double top() const { return sheet().property("y").toDouble(); }
    double height() const { return sheet().property("height").toDouble(); }
    int ground() const { return window().grabWindow().pixelColor(3, 3).lightness(); }
};

TEST_F(SheetOverAWindow, KeepsItsTopEdgeWhenItsContentGrowsAndShrinks)
{
    open();
    const auto before = top();
    const auto small = height();
    EXPECT_NEAR(before, (440 - small) / 2, 1) << "it opens in the middle";
    setProperty("boxHeight", 130);
    EXPECT_EQ(height(), small + 70);
    EXPECT_EQ(top(), before);
    setProperty("boxHeight", 40);
    EXPECT_EQ(height(), small - 20);
    EXPECT_EQ(top(), before);
}

TEST_F(SheetOverAWindow, MovesUpOnlyAsFarAsItMustAndIsNeverLargerThanTheWindow)
{
    open();
    const auto small = height();
    setProperty("boxHeight", 60 + 300 - static_cast<int>(small));
    EXPECT_EQ(height(), 300);
    EXPECT_EQ(top() + height(), 440 - 20);
    setProperty("boxHeight", 2'000);
    EXPECT_EQ(top(), 20);
    EXPECT_EQ(height(), 400);
}

TEST_F(SheetOverAWindow, StandsInTheMiddleOfAWindowThatIsResized)
{
    open();
    setProperty("boxHeight", 130);
    window().resize(480, 600);
    settle();
    EXPECT_NEAR(top(), (600 - height()) / 2, 1);
}

TEST_F(SheetOverAWindow, ItsHeightFollowsItsContentSmoothlyUnlessMotionIsReduced)
{
    setProperty("hasMotion", true);
    open();
    ASSERT_TRUE(QTest::qWaitFor([this] { return sheet().property("opened").toBool(); }));
    const auto small = height();
    window().setProperty("boxHeight", 160);
    EXPECT_LT(height(), small + 50);
    bool wasBetween = false;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        wasBetween = wasBetween || (height() > small && height() < small + 100);
        return height() == small + 100;
    }));
    EXPECT_TRUE(wasBetween);
}

TEST_F(SheetOverAWindow, ADialogOverItDimsTheWindowLessThanTheSheetDid)
{
    const auto bright = ground();
    open();
    const auto dimmed = ground();
    setProperty("asks", true);
    const auto twice = ground();
    EXPECT_LT(twice, dimmed);
    EXPECT_LT(dimmed - twice, (bright - dimmed) / 2);
    EXPECT_GT(twice, 255 * 45 / 100);
}

TEST_F(SheetOverAWindow, ADialogOverTheWindowItselfDimsItAsASheetDoes)
{
    open();
    const auto dimmed = ground();
    setProperty("isShown", false);
    KitWindow other(QStringLiteral(R"(
        property bool isShown: false
        color: "#ffffff"
        PopupLoader {
            isShown: window.isShown
            sourceComponent: MessageDialog {
                title: "Question"
                CommandButton { text: "OK"; focus: true }
            }
        })"));
    other.setProperty("isShown", true);
    EXPECT_EQ(other.window().grabWindow().pixelColor(3, 3).lightness(), dimmed);
}

TEST(DialogOverAWindow, StandsInTheMiddleAsSoonAsItIsSeenWithAndWithoutMotion)
{
    for (const bool hasMotion : {false, true}) {
        KitWindow kit(QStringLiteral(R"(
            property bool isShown: false
            PopupLoader {
                isShown: window.isShown
                sourceComponent: MessageDialog {
                    objectName: "dialog"
                    title: "Delete \"Checkout\"?"
                    text: "The component is removed from the page at once, and its history with it. This can't be undone."
                    CommandButton { text: "Cancel"; focus: true }
                }
            })"));
        kit.setProperty("hasMotion", hasMotion);
        kit.setProperty("isShown", true);
        const auto& dialog = *kit.window().findChild<QObject*>(QStringLiteral("dialog"));
        ASSERT_TRUE(QTest::qWaitFor([&dialog] { return dialog.property("opened").toBool(); }));
        kit.settle();
        const auto height = dialog.property("height").toDouble();
        EXPECT_GT(height, 100);
        EXPECT_NEAR(dialog.property("y").toDouble() + height / 2, 220, 1) << hasMotion;
    }
}

class MenuOfAButton : public testing::Test, public KitWindow {
protected:
    MenuOfAButton()
        : KitWindow(QStringLiteral(R"(
            property bool isOpen: false
            property int pressedRow: -1
            Item {
                x: 100; y: 20; width: 32; height: 32
                KitMenu {
                    objectName: "menu"
                    visible: window.isOpen
                    KitMenuItem { objectName: "first"; text: "Edit" }
                    KitMenuSeparator {}
                    KitMenuItem { objectName: "second"; text: "Delete"; isDestructive: true }
                }
            })"))
    {
    }

    QObject& menu() const { return *window().findChild<QObject*>(QStringLiteral("menu")); }
};

TEST_F(MenuOfAButton, FadesInWhileItsRowsAreAlreadyReachedByTheKeyboard)
{
    setProperty("hasMotion", true);
    window().setProperty("isOpen", true);
    QTest::keyClick(&window(), Qt::Key_Down);
    EXPECT_LT(menu().property("opacity").toDouble(), 1);
    EXPECT_EQ(menu().property("currentIndex").toInt(), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return menu().property("opacity").toDouble() == 1; }));
}

TEST_F(MenuOfAButton, ClosedWhileItFadesInItIsWholeWhenItIsOpenedAgain)
{
    setProperty("hasMotion", true);
    window().setProperty("isOpen", true);
    window().setProperty("isOpen", false);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !menu().property("visible").toBool(); }));
    window().setProperty("isOpen", true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return menu().property("opacity").toDouble() == 1; }));
}

TEST_F(MenuOfAButton, LeavesAsItCame)
{
    setProperty("hasMotion", true);
    setProperty("isOpen", true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return menu().property("opened").toBool(); }));
    ASSERT_TRUE(QTest::qWaitFor([this] { return menu().property("opacity").toDouble() == 1; }));
    window().setProperty("isOpen", false);
    bool wasFading = false;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const auto opacity = menu().property("opacity").toDouble();
        wasFading = wasFading || (menu().property("visible").toBool() && opacity > 0 && opacity < 1);
        return !menu().property("visible").toBool();
    }));
    EXPECT_TRUE(wasFading);
}

TEST_F(MenuOfAButton, ItsRowIsDarkerWhileItIsPressed)
{
    setProperty("isOpen", true);
    const auto& row = item(QStringLiteral("first"));
    const auto place = frameOf(row).center().toPoint();
    const auto edge = frameOf(row).topLeft().toPoint() + QPoint(6, 3);
    QTest::mouseMove(&window(), place);
    settle();
    const auto lit = window().grabWindow().pixelColor(edge);
    QTest::mousePress(&window(), Qt::LeftButton, {}, place);
    settle();
    EXPECT_LT(window().grabWindow().pixelColor(edge).lightness(), lit.lightness());
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, place);
}

TEST_F(MenuOfAButton, WhatCannotBeUndoneStandsApart)
{
    setProperty("isOpen", true);
    EXPECT_GE(gapBelow(item(QStringLiteral("first")), item(QStringLiteral("second"))), 16);
}

TEST_F(MenuOfAButton, OpensClearOfTheHeadersLine)
{
    setProperty("isOpen", true);
    EXPECT_GE(menu().property("y").toDouble(), 32 + 8 + 4);
}

}  // namespace

}  // namespace larkspan
