#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>
#include <vector>

#include "Measures.h"
#include "Screen.h"

namespace larkspan {

namespace {

using Role = QAccessible::Role;

class MenuOnScreen : public testing::Test, public Screen {
protected:
    MenuOnScreen()
    {
        state->setupStatusItem({});
        menu.show([this](const platform::MenuRow& row) { chosen.push_back(row.title); });
    }

    /// Shows pages named "a", "b" and so on, and opens the menu with the keyboard.
    void open(int pages)
    {
        std::vector<std::string> ids;
        for (int number = 0; number < pages; ++number) ids.push_back("page-" + std::to_string(number));
        servePages(ids, {});
        refresh();
        menu.setButton(statusItem.button);
        menu.setMenu(statusItem.rows);
        settle();
        button().forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Space);
    }

    QQuickItem& button() const { return item(Role::Button, QStringLiteral("Menu")); }
    bool isOpen() const { return !names(Role::MenuItem).isEmpty(); }

    /// The row with the focus.
    QString current() const
    {
        for (const auto& thing : things()) {
            if (thing.role == Role::MenuItem && QAccessible::queryAccessibleInterface(thing.object)->state().focused) {
                return thing.name;
            }
        }
        return {};
    }

    /// The colour of the dot in the row with this title.
    QColor dot(const QString& title) const
    {
        for (const auto* const part : item(Role::MenuItem, title).childItems()) {
            const bool isRound = part->width() > 0 && part->property("radius").toReal() * 2 == part->width();
            if (part->isVisible() && isRound) return part->property("color").value<QColor>();
        }
        return {};
    }

    /// The row with this title, command or not.
    QQuickItem& titled(const QString& title) const
    {
        for (const auto& thing : things()) {
            auto* const row = qobject_cast<QQuickItem*>(thing.object);
            const bool isOfTheMenu = row && thing.role != Role::ListItem && row->property("isLit").isValid();
            if (isOfTheMenu && thing.name == title) return *row;
        }
        throw std::runtime_error("no row is called " + title.toStdString());
    }

    std::vector<std::string> chosen;
};

TEST_F(MenuOnScreen, TheDotOfAPageKeepsItsColourOnTheRowThatIsLit)
{
    open(2);
    press(Qt::Key_Home);
    ASSERT_EQ(current(), QStringLiteral("page-0"));
    ASSERT_TRUE(dot(QStringLiteral("page-1")).isValid());
    EXPECT_EQ(dot(QStringLiteral("page-0")), dot(QStringLiteral("page-1")));
}

TEST_F(MenuOnScreen, HasThePanelsRowsInTheirOrderAndTheAboutBoxBeforeQuit)
{
    open(2);
    EXPECT_EQ(names(Role::MenuItem),
        (QStringList{"Unknown", "Updated just now", "page-0", "page-1", "Refresh", "Open Dashboard",
            "Check for Updates\u2026", "About Kestrune", "Quit"}));
}

TEST_F(MenuOnScreen, APageIsDescribedByItsStatus)
{
    open(1);
    for (const auto& thing : things()) {
        if (thing.role == Role::MenuItem && thing.name == QStringLiteral("page-0")) {
            EXPECT_EQ(thing.description, QStringLiteral("Unknown"));
        }
    }
}

TEST_F(MenuOnScreen, TheKeyboardMovesFromCommandToCommandAndReturnChooses)
{
    open(1);
    QStringList met;
    for (const auto key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_End, Qt::Key_Up, Qt::Key_Home}) {
        press(key);
        met << current();
    }
    EXPECT_EQ(met, (QStringList{"page-0", "Refresh", "Quit", "About Kestrune", "page-0"}));
    press(Qt::Key_Return);
    EXPECT_EQ(chosen, std::vector<std::string>{"page-0"});
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(button().hasActiveFocus());
}

TEST_F(MenuOnScreen, KeysPressedWhileItFadesInChooseInIt)
{
    mainWindow.appearance().setProperty("reducesMotion", false);
    open(1);
    press(Qt::Key_Escape);
    for (const auto key : {Qt::Key_Space, Qt::Key_Down, Qt::Key_Return}) QTest::keyClick(&window(), key);
    settle();
    EXPECT_EQ(chosen, std::vector<std::string>{"page-0"});
}

TEST_F(MenuOnScreen, AKeyEquivalentChooses)
{
    open(1);
    press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(chosen, std::vector<std::string>{"Open Dashboard"});
    EXPECT_FALSE(isOpen());
}

TEST_F(MenuOnScreen, EscapeClosesAndGivesTheFocusBack)
{
    open(1);
    press(Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(button().hasActiveFocus());
    EXPECT_TRUE(chosen.empty());
}

TEST_F(MenuOnScreen, AboutKestruneStandsBeforeQuitAndOpensTheAboutBox)
{
    open(1);
    press(Qt::Key_End);
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    EXPECT_TRUE(*aboutOwner.showingAbout);
}

TEST_F(MenuOnScreen, AnOpenMenuChangesInPlace)
{
    open(2);
    press(Qt::Key_End);
    auto rows = statusItem.rows;
    rows[1].title = "Updated 10s ago";
    menu.setMenu(rows);
    settle();
    EXPECT_TRUE(names(Role::MenuItem).contains(QStringLiteral("Updated 10s ago")));
    EXPECT_EQ(current(), QStringLiteral("Quit"));
}

TEST_F(MenuOnScreen, WhileItIsOpenNoRowMovesSoThatAPressMeetsTheRowItWasMeantFor)
{
    open(2);
    const auto before = names(Role::MenuItem);
    auto& meant = item(Role::MenuItem, QStringLiteral("page-1"));
    const auto place = meant.mapToScene({meant.width() / 2, meant.height() / 2}).toPoint();
    auto rows = statusItem.rows;
    // The age and the first page.
    rows.erase(rows.begin() + 3);
    rows.erase(rows.begin() + 1);
    menu.setMenu(rows);
    settle();
    EXPECT_EQ(names(Role::MenuItem), before);
    QTest::mouseClick(&window(), Qt::LeftButton, {}, place);
    settle();
    EXPECT_EQ(chosen, std::vector<std::string>{"page-1"});
    press(Qt::Key_Space);
    EXPECT_EQ(names(Role::MenuItem), before.mid(0, 1) + before.mid(3)) << "opened again";
}

TEST_F(MenuOnScreen, ATitleThatLooksLikeMarkupOrAMnemonicIsShownLiterally)
{
    open(1);
    auto rows = statusItem.rows;
    const QStringList odd{"<b>Bold</b>", "R&D", "snake_case", "&amp;"};
    // The state, its age, a page and a command.
    for (int at = 0; const auto place : std::vector<std::size_t>{0, 1, 3, 5})
        rows[place].title = odd[at++].toStdString();
    menu.setMenu(rows);
    press(Qt::Key_Escape);
    press(Qt::Key_Space);
    for (const auto& title : odd) EXPECT_TRUE(names(Role::MenuItem).contains(title)) << title.toStdString();
}

TEST_F(MenuOnScreen, OfAThousandPagesOnlyThoseInSightCostAnItem)
{
    open(1'000);
    EXPECT_TRUE(isOpen());
    EXPECT_LT(names(Role::MenuItem).size(), 100);
    press(Qt::Key_End);
    EXPECT_EQ(current(), QStringLiteral("Quit"));
}

TEST_F(MenuOnScreen, OfAThousandPagesOnlyThePagesScrollWhileStateIncidentsAndCommandsStayInView)
{
    serveIncidents({incident("1", "Login errors")});
    open(1'000);
    const QStringList others{"Down", "Active Incidents", "Login errors", "Refresh", "Quit"};
    std::map<QString, QRectF> before;
    for (const auto& title : others) before[title] = frameOf(titled(title));
    EXPECT_LE(before["Quit"].bottom(), window().height());
    EXPECT_TRUE(names(Role::MenuItem).contains(QStringLiteral("page-0")));

    for (int step = 0; step < 30; ++step) press(Qt::Key_Down);
    EXPECT_EQ(current(), QStringLiteral("page-29"));
    const auto page = frameOf(titled(QStringLiteral("page-29")));
    EXPECT_GE(page.top(), before["Down"].bottom());
    EXPECT_LE(page.bottom(), before["Active Incidents"].top());
    for (const auto& title : others) EXPECT_EQ(frameOf(titled(title)), before[title]) << title.toStdString();
}

TEST_F(MenuOnScreen, InASmallWindowTheCommandsStayInViewAndEverythingAboveThemScrolls)
{
    window().resize(480, 440);
    settle();
    serveIncidents(
        {incident("1", "a"), incident("2", "b"), incident("3", "c"), incident("4", "d"), incident("5", "e")});
    open(40);
    EXPECT_GE(frameOf(titled(QStringLiteral("Down"))).top(), 48) << "it opens at its beginning";
    press(Qt::Key_Home);
    EXPECT_EQ(current(), QStringLiteral("page-0"));
    const auto commands = frameOf(titled(QStringLiteral("Refresh")));
    EXPECT_LE(frameOf(titled(QStringLiteral("Down"))).bottom(), commands.top());
    EXPECT_GE(frameOf(titled(QStringLiteral("Down"))).top(), 48);
    for (int step = 0; step < 40; ++step) press(Qt::Key_Down);
    EXPECT_EQ(current(), QStringLiteral("Refresh"));
    EXPECT_EQ(frameOf(titled(QStringLiteral("Refresh"))), commands);
    EXPECT_LE(frameOf(titled(QStringLiteral("e"))).bottom(), commands.top()) << "the last incident is in view";
    EXPECT_GE(frameOf(titled(QStringLiteral("e"))).top(), 48);
    EXPECT_LE(frameOf(titled(QStringLiteral("Quit"))).bottom(), 440);
}

/// The menu in a small window, with this many pages and five incidents.
class SmallMenuOnScreen : public MenuOnScreen, public testing::WithParamInterface<int> {
protected:
    SmallMenuOnScreen()
    {
        window().resize(480, 440);
        settle();
        serveIncidents(
            {incident("1", "a"), incident("2", "b"), incident("3", "c"), incident("4", "d"), incident("5", "e")});
        open(GetParam());
    }
};

TEST_P(SmallMenuOnScreen, WhatScrollsEndsInTheMiddleOfARowAndNotAtASeparator)
{
    const double separator = 9;
    const double end = frameOf(titled(QStringLiteral("Refresh"))).top() - separator;
    int cut = 0;
    visit([&](QQuickItem& row) {
        const bool isRow = row.isVisible() && row.property("isLit").isValid() && row.height() > separator;
        const auto place = frameOf(row);
        if (isRow && end >= place.top() + 8 && end <= place.bottom() - 8) ++cut;
    });
    EXPECT_EQ(cut, 1);
    EXPECT_LE(frameOf(titled(QStringLiteral("Quit"))).bottom(), 440);
}

INSTANTIATE_TEST_SUITE_P(PagesAndIncidents, SmallMenuOnScreen, testing::Values(3, 4, 5, 6, 40));

TEST_F(MenuOnScreen, OpensClearOfTheHeadersLine)
{
    open(1);
    const auto& list = item(Role::PopupMenu, QStringLiteral("Menu"));
    EXPECT_GE(frameOf(list).top() - 4, 48 + 4) << "the menu's edge is 4 points above its rows";
}

TEST_F(MenuOnScreen, TheRowOfTheStateIsSemiboldWithItsSymbolAndTheHeadingOfIncidentsIsAHeading)
{
    serveIncidents({incident("1", "Login errors")});
    open(1);
    const auto& status = *partOf(titled(QStringLiteral("Down")), "text", QStringLiteral("Down"));
    EXPECT_EQ(fontOf(status).weight(), QFont::DemiBold);
    EXPECT_EQ(colorOf(status), light::primary);
    EXPECT_EQ(partsOf(titled(QStringLiteral("Down")), "name", "xmark.circle.fill").size(), 1);

    EXPECT_EQ(names(Role::Heading).count(QStringLiteral("Active Incidents")), 1);
    const auto& incident = *partOf(titled(QStringLiteral("Login errors")), "text", QStringLiteral("Login errors"));
    EXPECT_EQ(colorOf(incident), light::primary) << "text, not a command that is disabled";
    EXPECT_EQ(fontOf(incident).weight(), QFont::Normal);
}

TEST_F(MenuOnScreen, ThePageEndsInTheWordOfItsStatus)
{
    open(1);
    const auto& row = titled(QStringLiteral("page-0"));
    const auto& word = *partOf(row, "text", QStringLiteral("Unknown"));
    EXPECT_NEAR(frameOf(word).right(), frameOf(row).right() - 12, 1);
}

TEST_F(MenuOnScreen, ARowIsDarkerWhileItIsPressed)
{
    open(1);
    press(Qt::Key_Home);
    auto& row = titled(QStringLiteral("page-0"));
    const auto lit = [&row] {
        for (const auto* const part : row.childItems()) {
            if (part->isVisible() && part->width() == row.width() && part->property("radius").toInt() > 0)
                return part->property("color").value<QColor>();
        }
        return QColor();
    };
    const auto before = lit();
    const auto place = frameOf(row).center().toPoint();
    QTest::mousePress(&window(), Qt::LeftButton, {}, place);
    settle();
    EXPECT_LT(lit().lightness(), before.lightness());
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, place);
    settle();
    EXPECT_EQ(chosen, std::vector<std::string>{"page-0"});
}

TEST_F(MenuOnScreen, WhatItOpensKeepsTheFocusWhileItFadesOutAndGivesItBackToTheButton)
{
    mainWindow.appearance().setProperty("reducesMotion", false);
    open(1);
    press(Qt::Key_End);
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    const auto named = [this](const QString& name) {
        return QTest::qWaitFor([this, &name] {
            settle();
            const auto* const access = QAccessible::queryAccessibleInterface(window().activeFocusItem());
            return access && access->text(QAccessible::Name) == name && !isOpen();
        });
    };
    EXPECT_TRUE(named(QStringLiteral("Done")));
    QTest::qWait(200);
    EXPECT_TRUE(named(QStringLiteral("Done")));
    press(Qt::Key_Escape);
    EXPECT_TRUE(named(QStringLiteral("Menu")));
}

}  // namespace

}  // namespace larkspan
