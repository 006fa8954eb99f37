#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include "ChosenSize.h"
#include "IncidentsOnScreen.h"
#include "Measures.h"

namespace larkspan {

namespace {

/// The tabs of a page in large letters, which do not fit side by side into the smallest window.
class NarrowTabs : public LargeLetters, public IncidentsOnScreen {
protected:
    NarrowTabs()
    {
        window().resize(480, 440);
        settle();
    }

    QQuickItem& button() const { return item(Role::ComboBox, QStringLiteral("View")); }
    QString shownTab() const
    {
        return QAccessible::queryAccessibleInterface(&button())->text(QAccessible::Description);
    }
    void click(const QQuickItem& target)
    {
        QTest::mouseClick(&window(), Qt::LeftButton, {}, frameOf(target).center().toPoint());
        settle();
    }
};

TEST_F(NarrowTabs, AreOneButtonOfFullWidthWithTheWordOfTheSelectedOne)
{
    EXPECT_EQ(frameOf(button()).left(), 20);
    EXPECT_EQ(frameOf(button()).right(), 460);
    EXPECT_EQ(shownTab(), QStringLiteral("Incidents"));
    EXPECT_TRUE(names(Role::PageTab).isEmpty());
    const auto& word = *partOf(button(), "text", QStringLiteral("Incidents"));
    EXPECT_FALSE(word.property("truncated").toBool());
}

TEST_F(NarrowTabs, AreSideBySideWhereTheirWordsFit)
{
    window().resize(1600, 900);
    settle();
    EXPECT_EQ(names(Role::PageTab).size(), 5);
    EXPECT_TRUE(names(Role::ComboBox).isEmpty());
    for (const auto& name : names(Role::PageTab)) {
        const auto& word = *partOf(item(Role::PageTab, name), "text", name);
        EXPECT_FALSE(word.property("truncated").toBool()) << name.toStdString();
    }
}

TEST_F(NarrowTabs, AreChosenInAMenuOfTheFiveByTheKeyboardAndTheFocusComesBack)
{
    button().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_EQ(names(Role::MenuItem), (QStringList{"Overview", "Incidents", "Monitors", "Components", "Maintenances"}));
    EXPECT_EQ(window().activeFocusItem()->property("text"), QStringLiteral("Incidents"));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(shownTab(), QStringLiteral("Components"));
    EXPECT_TRUE(names(Role::MenuItem).isEmpty());
    EXPECT_TRUE(button().hasActiveFocus());
}

TEST_F(NarrowTabs, StayAsTheyAreIfTheMenuIsLeft)
{
    button().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    ASSERT_EQ(names(Role::MenuItem).size(), 5);
    press(Qt::Key_Escape);
    EXPECT_EQ(shownTab(), QStringLiteral("Incidents"));
    EXPECT_TRUE(button().hasActiveFocus());
}

TEST_F(NarrowTabs, AreChosenByTheArrowsAndByControlWithADigitAsBefore)
{
    button().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_EQ(shownTab(), QStringLiteral("Monitors"));
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(shownTab(), QStringLiteral("Overview"));
    EXPECT_TRUE(button().hasActiveFocus());
    press(Qt::Key_5, Qt::ControlModifier);
    EXPECT_EQ(shownTab(), QStringLiteral("Maintenances"));
}

TEST_F(NarrowTabs, GiveTheFocusToTheListThatIsChosenWithThePointer)
{
    click(button());
    click(item(Role::MenuItem, QStringLiteral("Incidents")));
    EXPECT_TRUE(item(Role::List, QStringLiteral("Incidents")).hasActiveFocus()
        || item(Role::ListItem, QStringLiteral("Login errors")).hasActiveFocus());
}

TEST_F(NarrowTabs, KeepTheFocusWhenTheWindowBecomesWideAndNarrow)
{
    button().forceActiveFocus(Qt::TabFocusReason);
    window().resize(1600, 900);
    settle();
    EXPECT_TRUE(item(Role::PageTabList, QStringLiteral("View")).hasActiveFocus());
    window().resize(480, 440);
    settle();
    EXPECT_TRUE(button().hasActiveFocus());
}

}  // namespace

}  // namespace larkspan
