#include <QAccessible>

#include <gtest/gtest.h>

#include "KitWindow.h"

namespace larkspan {

namespace {

/// A window with a button, covered by a sheet with a button and by an alert.
class AccessibleState : public testing::Test, public KitWindow {
protected:
    AccessibleState()
        : KitWindow(QStringLiteral(R"(
            property bool isEnabled: true
            property bool showsSheet: false
            property bool showsAlert: false
            property bool showsMenu: false
            property var pressed: []
            ScreenFrame {
                anchors.fill: parent
                title: "Screen"
                Item {
                    enabled: window.isEnabled
                    CommandButton { objectName: "below"; text: "Below"; focus: true; onClicked: window.pressed.push("below") }
                    Label { objectName: "words"; y: 100; text: "Words" }
                    ToolbarButton { objectName: "tool"; y: 120; symbol: "plus"; help: "Tool"; onClicked: window.pressed.push("tool") }
                    Pressable { objectName: "pressable"; y: 160; text: "Pressable"; Accessible.role: Accessible.Button; onClicked: window.pressed.push("pressable") }
                    CardRow { objectName: "row"; y: 200; width: 100; index: 0; name: "Row"; contentItem: Item {} onClicked: window.pressed.push("row") }
                }
            }
            PopupLoader {
                isShown: window.showsSheet
                onDismissed: window.showsSheet = false
                sourceComponent: Sheet {
                    title: "Sheet"
                    CommandButton { objectName: "inSheet"; text: "In the sheet"; focus: true; onClicked: window.pressed.push("inSheet") }
                }
            }
            PopupLoader {
                isShown: window.showsAlert
                onDismissed: window.showsAlert = false
                sourceComponent: ErrorAlert { objectName: "alert"; text: "It failed." }
            }
            KitMenu {
                visible: window.showsMenu
                KitMenuItem { objectName: "choice"; text: "Choice" }
            })"))
    {
    }

    QAccessible::State stateOf(const char* name) const
    {
        return QAccessible::queryAccessibleInterface(&item(QString::fromLatin1(name)))->state();
    }
    /// All that has been pressed, after an assistive technology has pressed `name`.
    QStringList pressed(const char* name)
    {
        auto* const actions
            = QAccessible::queryAccessibleInterface(&item(QString::fromLatin1(name)))->actionInterface();
        actions->doAction(QAccessibleActionInterface::pressAction());
        settle();
        return property("pressed").toStringList();
    }
    bool isDisabled(const char* name) const { return stateOf(name).disabled; }
    bool shows(const char* name) const { return !stateOf(name).offscreen && !stateOf(name).invisible; }
};

TEST_F(AccessibleState, AnItemIsDisabledWhileItOrWhatItStandsInIs)
{
    EXPECT_FALSE(isDisabled("below"));
    setProperty("isEnabled", false);
    EXPECT_TRUE(isDisabled("below"));
    EXPECT_TRUE(isDisabled("words"));
    setProperty("isEnabled", true);
    EXPECT_FALSE(isDisabled("below"));
}

TEST_F(AccessibleState, WhatASheetCoversDoesNotShowUntilItIsGone)
{
    EXPECT_TRUE(shows("below"));
    setProperty("showsSheet", true);
    EXPECT_FALSE(shows("below"));
    EXPECT_FALSE(shows("words"));
    EXPECT_TRUE(shows("inSheet"));
    setProperty("showsSheet", false);
    EXPECT_TRUE(shows("below"));
}

TEST_F(AccessibleState, AnAlertCoversTheSheetBeneathIt)
{
    setProperty("showsSheet", true);
    setProperty("showsAlert", true);
    EXPECT_FALSE(shows("below"));
    EXPECT_FALSE(shows("inSheet"));
    setProperty("showsAlert", false);
    EXPECT_TRUE(shows("inSheet"));
}

TEST_F(AccessibleState, AMenuOverASheetCoversNothing)
{
    setProperty("showsSheet", true);
    setProperty("showsMenu", true);
    EXPECT_TRUE(shows("choice"));
    EXPECT_TRUE(shows("inSheet"));
    EXPECT_FALSE(shows("below"));
}

TEST_F(AccessibleState, PressingWhatIsDisabledDoesNothing)
{
    QStringList all;
    for (const auto* const name : {"below", "tool", "pressable", "row"}) {
        setProperty("isEnabled", false);
        EXPECT_EQ(pressed(name), all);
        setProperty("isEnabled", true);
        EXPECT_EQ(pressed(name), all += QString::fromLatin1(name));
    }
}

TEST_F(AccessibleState, PressingWhatASheetCoversDoesNothing)
{
    setProperty("showsSheet", true);
    EXPECT_EQ(pressed("below"), QStringList());
    EXPECT_EQ(pressed("inSheet"), QStringList("inSheet"));
    setProperty("showsSheet", false);
    EXPECT_EQ(pressed("below"), (QStringList{"inSheet", "below"}));
}

TEST_F(AccessibleState, AnItemHasTheRoleTheNameTheActionsAndTheParentThatQtGivesIt)
{
    auto* const access = QAccessible::queryAccessibleInterface(&item(QStringLiteral("below")));
    EXPECT_EQ(access->role(), QAccessible::Button);
    EXPECT_EQ(access->text(QAccessible::Name), QStringLiteral("Below"));
    EXPECT_TRUE(access->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    ASSERT_NE(access->parent(), nullptr);
    EXPECT_EQ(access->parent()->child(access->parent()->indexOfChild(access)), access);
}

}  // namespace

}  // namespace larkspan
