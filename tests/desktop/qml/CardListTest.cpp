#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include "Screen.h"

namespace larkspan {

namespace {

using Role = QAccessible::Role;

class ListOnScreen : public testing::Test, public Screen {
protected:
    void show(const std::vector<std::string>& pages)
    {
        servePages(pages, {});
        refresh();
        settle();
        list().forceActiveFocus();
    }

    void type(const char* letters)
    {
        for (const char* letter = letters; *letter != '\0'; ++letter) QTest::keyClick(&window(), *letter);
        settle();
    }

    QQuickItem& list() const { return item(Role::List, QStringLiteral("Status Pages")); }

    /// The row with the focus.
    QString current() const
    {
        for (const auto& thing : things()) {
            if (thing.role == Role::ListItem && QAccessible::queryAccessibleInterface(thing.object)->state().focused) {
                return thing.name;
            }
        }
        return {};
    }

    bool hasRing(const QString& row) const
    {
        const auto* const tint = item(Role::ListItem, row).childItems().constFirst();
        return tint->property("border").value<QObject*>()->property("width").toInt() > 0;
    }
};

TEST_F(ListOnScreen, LettersTypedMoveToTheNextRowThatBeginsWithThem)
{
    show({"Acme", "Beta", "Gamma", "Gateway", "Billing"});
    type("g");
    EXPECT_EQ(current(), QStringLiteral("Gamma"));
    type("at");
    EXPECT_EQ(current(), QStringLiteral("Gateway"));
}

TEST_F(ListOnScreen, TheSameLetterAgainGoesOnToTheNextRow)
{
    show({"Acme", "Beta", "Gamma", "Billing"});
    type("b");
    EXPECT_EQ(current(), QStringLiteral("Beta"));
    type("b");
    EXPECT_EQ(current(), QStringLiteral("Billing"));
    type("b");
    EXPECT_EQ(current(), QStringLiteral("Beta"));
}

TEST_F(ListOnScreen, LettersThatNoRowBeginsWithLeaveTheCurrentRow)
{
    show({"Acme", "Beta"});
    type("x");
    EXPECT_EQ(current(), QStringLiteral("Acme"));
}

TEST_F(ListOnScreen, LettersReachARowFarOutOfSight)
{
    std::vector<std::string> pages;
    for (int number = 0; number < 1'000; ++number) pages.push_back("page " + std::to_string(number));
    pages.emplace_back("the last one");
    show(pages);
    type("the");
    EXPECT_EQ(current(), QStringLiteral("the last one"));
}

TEST_F(ListOnScreen, SpaceAndReturnPressTheCurrentRow)
{
    show({"Acme", "Beta"});
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    EXPECT_EQ(*dashboard->selectedPageId, "Beta");
    press(Qt::Key_Escape);
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    EXPECT_EQ(*dashboard->selectedPageId, "Acme");
}

TEST_F(ListOnScreen, ABlankAmongLettersIsOneOfThem)
{
    show({"Acme", "Beta One", "Beta Two"});
    type("beta t");
    EXPECT_EQ(current(), QStringLiteral("Beta Two"));
    EXPECT_EQ(*dashboard->selectedPageId, std::nullopt);
}

TEST_F(ListOnScreen, TheRingShowsToThoseWhoUseTheKeyboard)
{
    show({"Acme", "Beta"});
    press(Qt::Key_Down);
    EXPECT_TRUE(hasRing(QStringLiteral("Beta")));
    EXPECT_FALSE(hasRing(QStringLiteral("Acme")));
    for (const int y : {24, window().height() - 10}) {
        press(Qt::Key_Down);
        QTest::mouseClick(&window(), Qt::LeftButton, {}, {window().width() / 2, y});
        settle();
        EXPECT_FALSE(hasRing(QStringLiteral("Beta"))) << y;
    }
}

/// The rows of lists, of the menu and of links as a screen reader finds them.
class RowsOnScreen : public ListOnScreen {
protected:
    /// The names of the labels below `row`, in their order.
    static QStringList labels(const QAccessibleInterface& row)
    {
        QStringList names;
        for (int child = 0; child < row.childCount(); ++child) {
            const auto* const label = row.child(child);
            if (label->role() == Role::StaticText && !label->state().invisible) names << label->text(QAccessible::Name);
            names << labels(*label);
        }
        return names;
    }

    /// The texts painted below `item`, in their order.
    static QStringList painted(const QQuickItem& item)
    {
        QStringList texts;
        for (const auto* const child : item.childItems()) {
            if (!child->isVisible()) continue;
            const auto text = child->inherits("QQuickText") ? child->property("text").toString() : QString();
            if (!text.isEmpty()) texts << text;
            texts << painted(*child);
        }
        return texts;
    }

    /// An item counts as a row if it has one of these roles, and a description or a place in a list.
    void expectEachLabelInTheTree(Role role, int least)
    {
        int rows = 0;
        for (const auto& thing : things()) {
            if (thing.role != role || (role == Role::Button && thing.description.isEmpty())) continue;
            ++rows;
            const auto& row = *qobject_cast<QQuickItem*>(thing.object);
            EXPECT_EQ(labels(*QAccessible::queryAccessibleInterface(thing.object)), painted(row));
            EXPECT_TRUE(painted(row).isEmpty() || painted(row).constFirst() == thing.name);
        }
        EXPECT_GE(rows, least);
    }
};

TEST_F(RowsOnScreen, OfAListKeepEachLabelInTheTreeInItsExactWordsAndInReadingOrder)
{
    servePages({"a", "b"}, {{"a", "major-outage"}, {"b", "operational"}});
    refresh();
    settle();
    expectEachLabelInTheTree(Role::ListItem, 2);
    const auto& row = item(Role::ListItem, QStringLiteral("a"));
    EXPECT_EQ(
        labels(*QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(&row))), (QStringList{"a", "Down"}));
}

TEST_F(RowsOnScreen, OfTheMenuKeepEachLabelInTheTreeInItsExactWords)
{
    show({"a"});
    state->setupStatusItem({});
    menu.setMenu(statusItem.rows);
    item(Role::Button, QStringLiteral("Menu")).forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    expectEachLabelInTheTree(Role::MenuItem, 6);
}

TEST_F(RowsOnScreen, OfLinksKeepEachLabelInTheTreeInItsExactWords)
{
    aboutOwner.showingAbout = true;
    settle();
    expectEachLabelInTheTree(Role::Button, 3);
}

}  // namespace

}  // namespace larkspan
