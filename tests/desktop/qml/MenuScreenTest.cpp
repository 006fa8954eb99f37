#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

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

TEST_F(MenuOnScreen, HasThePanelsRowsInTheirOrderAndTheAboutBox)
{
    open(2);
    EXPECT_EQ(names(Role::MenuItem),
        (QStringList{"Unknown", "Updated just now", "page-0", "page-1", "Refresh", "Open Dashboard",
            "Check for Updates\u2026", "Quit", "About Kestrune"}));
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
    EXPECT_EQ(met, (QStringList{"page-0", "Refresh", "About Kestrune", "Quit", "page-0"}));
    press(Qt::Key_Return);
    EXPECT_EQ(chosen, std::vector<std::string>{"page-0"});
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(button().hasActiveFocus());
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

TEST_F(MenuOnScreen, AboutKestruneIsTheLastRowAndOpensTheAboutBox)
{
    open(1);
    press(Qt::Key_End);
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
    EXPECT_EQ(current(), QStringLiteral("About Kestrune"));
}

TEST_F(MenuOnScreen, WhileItIsOpenNoRowMovesSoThatAPressMeetsTheRowItWasMeantFor)
{
    open(2);
    const auto before = names(Role::MenuItem);
    auto& meant = item(Role::MenuItem, QStringLiteral("page-1"));
    const auto place = meant.mapToScene({meant.width() / 2, meant.height() / 2}).toPoint();
    auto rows = statusItem.rows;
    rows.erase(rows.begin(), rows.begin() + 2);
    menu.setMenu(rows);
    settle();
    EXPECT_EQ(names(Role::MenuItem), before);
    QTest::mouseClick(&window(), Qt::LeftButton, {}, place);
    settle();
    EXPECT_EQ(chosen, std::vector<std::string>{"page-1"});
    press(Qt::Key_Space);
    EXPECT_EQ(names(Role::MenuItem), before.mid(2)) << "opened again";
}

TEST_F(MenuOnScreen, ATitleThatLooksLikeMarkupOrAMnemonicIsShownLiterally)
{
    open(1);
    auto rows = statusItem.rows;
    const QStringList odd{"<b>Bold</b>", "R&D", "snake_case", "&amp;"};
    for (std::size_t place = 0; place < 4; ++place) rows[place].title = odd[static_cast<int>(place)].toStdString();
    rows[2].kind = platform::MenuRow::Kind::information;
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
    EXPECT_EQ(current(), QStringLiteral("About Kestrune"));
}

}  // namespace

}  // namespace larkspan
