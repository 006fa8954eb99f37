#include "bridge/menu/StatusMenuBridge.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace larkspan::bridge {

namespace {

using platform::MenuRow;
using Rows = std::vector<MenuRow>;

MenuRow information(const std::string& title)
{
    return {.kind = MenuRow::Kind::information, .title = title};
}

MenuRow page(const std::string& id)
{
    return {.kind = MenuRow::Kind::command,
        .title = "Page " + id,
        .action = MenuRow::Action::openStatusPage,
        .representedObject = id,
        .dot = MenuRow::Dot::green,
        .toolTip = "Operational"};
}

MenuRow quit()
{
    return {.kind = MenuRow::Kind::command, .title = "Quit", .action = MenuRow::Action::quitApp, .keyEquivalent = "q"};
}

/// A menu with these pages: its places are 0 "Down", 1 a separator, 2 the first page.
Rows menuOf(const Rows& pages, const std::string& status = "Down")
{
    Rows rows{information(status), MenuRow{}};
    rows.insert(rows.end(), pages.begin(), pages.end());
    rows.insert(rows.end(), {MenuRow{}, quit()});
    return rows;
}

MenuRowValue rowOf(ListModel& part, int row)
{
    return part.data(part.index(row), ListModel::RowRole).value<MenuRowValue>();
}

class WindowMenu : public testing::Test {
protected:
    static QStringList titles(StatusMenuBridge& menu)
    {
        QStringList found;
        for (auto* const part : {menu.summary(), menu.pages(), menu.incidents(), menu.commands()}) {
            for (int row = 0; row < part->rowCount(); ++row) {
                const auto value = rowOf(*part, row);
                found << (value.isSeparator ? QStringLiteral("-") : value.title);
            }
        }
        return found;
    }

    int abouts = 0;
    Rows performed;
    StatusMenuBridge menu{[this] { ++abouts; }};
};

TEST_F(WindowMenu, HasTheAboutBoxBeforeQuitAndFromTheStart)
{
    EXPECT_EQ(titles(menu), QStringList{"About Kestrune"});
    menu.setMenu(menuOf({page("a")}));
    EXPECT_EQ(titles(menu), (QStringList{"Down", "-", "Page a", "About Kestrune", "-", "Quit"}));
    menu.choose(3);
    EXPECT_EQ(abouts, 1);
}

TEST_F(WindowMenu, TellsWhatARowIs)
{
    menu.setButton({.symbolName = "xmark.circle.fill"});
    menu.setMenu(menuOf({page("a")}));
    const auto state = rowOf(*menu.summary(), 0);
    EXPECT_TRUE(state.isStatus);
    EXPECT_FALSE(state.isCommand);
    EXPECT_EQ(state.symbol, QStringLiteral("xmark.circle.fill"));
    EXPECT_EQ(state.ending, QString());
    const auto shown = rowOf(*menu.pages(), 0);
    EXPECT_TRUE(shown.isCommand);
    EXPECT_TRUE(shown.hasDot);
    EXPECT_EQ(shown.help, QStringLiteral("Operational"));
    EXPECT_EQ(shown.ending, QStringLiteral("Operational"));
    EXPECT_EQ(rowOf(*menu.commands(), 2).ending, QStringLiteral("Ctrl+Q"));
}

TEST_F(WindowMenu, TellsTheHeadingOfTheIncidentsFromTheirTitles)
{
    auto rows = menuOf({page("a")});
    rows.insert(rows.end() - 1, {information("Active Incidents"), information("Login errors"), MenuRow{}});
    menu.setMenu(rows);
    EXPECT_TRUE(rowOf(*menu.incidents(), 1).isHeading);
    EXPECT_FALSE(rowOf(*menu.incidents(), 1).isText);
    EXPECT_TRUE(rowOf(*menu.incidents(), 2).isText);
    EXPECT_FALSE(rowOf(*menu.incidents(), 2).isHeading);
}

TEST_F(WindowMenu, PerformsCommandsAsLastGivenAndNothingElse)
{
    menu.show([this](const MenuRow& row) { performed.push_back(row); });
    menu.setMenu(menuOf({page("a")}));
    for (const int place : {-1, 0, 1, 2, 4, 99}) menu.choose(place);
    EXPECT_EQ(performed, Rows{page("a")});
}

TEST_F(WindowMenu, WithNobodyToPerformHarmsNothing)
{
    menu.setMenu(menuOf({}));
    menu.choose(4);
}

TEST_F(WindowMenu, SkipsWhatIsNoCommandInBothDirections)
{
    menu.setMenu(menuOf({page("a")}));
    EXPECT_EQ(menu.nextCommand(-1, 1), 2);
    EXPECT_EQ(menu.nextCommand(2, 1), 3) << "the about box, in another part";
    EXPECT_EQ(menu.nextCommand(3, 1), 5);
    EXPECT_EQ(menu.nextCommand(5, 1), 5) << "the last one";
    EXPECT_EQ(menu.nextCommand(5, -1), 3);
    EXPECT_EQ(menu.nextCommand(2, -1), 2) << "the first one";
}

TEST_F(WindowMenu, FindsARowByItsKeyWhateverTheCase)
{
    menu.setMenu(menuOf({page("a")}));
    EXPECT_EQ(menu.placeOfKey("Q"), 5);
    EXPECT_EQ(menu.placeOfKey("q"), 5);
    EXPECT_EQ(menu.placeOfKey("x"), -1);
    EXPECT_EQ(menu.placeOfKey(""), -1);
}

TEST_F(WindowMenu, AChangedTextIsPatchedInPlace)
{
    menu.setMenu(menuOf({page("a")}, "Degraded"));
    const QSignalSpy changed(menu.summary(), &QAbstractItemModel::dataChanged);
    const QSignalSpy inserted(menu.summary(), &QAbstractItemModel::rowsInserted);
    const QSignalSpy removed(menu.summary(), &QAbstractItemModel::rowsRemoved);
    menu.setMenu(menuOf({page("a")}, "Down"));
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 0);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 0);
    EXPECT_EQ(inserted.count() + removed.count(), 0);
}

TEST_F(WindowMenu, WhileItIsOpenItsTextsChangeInPlaceAndOtherRowsWaitUntilItIsClosed)
{
    menu.show([this](const MenuRow& row) { performed.push_back(row); });
    menu.setMenu(menuOf({page("a")}, "Operational"));
    menu.setOpen(true);
    menu.setMenu(menuOf({page("a")}));
    const QStringList held{"Down", "-", "Page a", "About Kestrune", "-", "Quit"};
    EXPECT_EQ(titles(menu), held);
    auto offline = menuOf({page("b")});
    offline.insert(offline.begin() + 1, information("Network Offline"));
    menu.setMenu(offline);
    EXPECT_EQ(titles(menu), held);
    menu.setMenu(menuOf({page("b")}));
    EXPECT_EQ(titles(menu), held) << "as many, but another page";
    menu.choose(2);
    EXPECT_EQ(performed, Rows{page("a")});
    menu.setOpen(false);
    EXPECT_EQ(titles(menu), (QStringList{"Down", "-", "Page b", "About Kestrune", "-", "Quit"}));
}

TEST_F(WindowMenu, AnUnchangedMenuTellsNothing)
{
    menu.setMenu(menuOf({page("a")}));
    const QSignalSpy summary(menu.summary(), &QAbstractItemModel::dataChanged);
    const QSignalSpy pages(menu.pages(), &QAbstractItemModel::dataChanged);
    menu.setMenu(menuOf({page("a")}));
    EXPECT_EQ(summary.count() + pages.count(), 0);
}

TEST_F(WindowMenu, ARowThatComesLeavesTheOthersAlone)
{
    menu.setMenu(menuOf({page("a"), page("c")}));
    const QPersistentModelIndex last = menu.pages()->index(1);
    const QSignalSpy inserted(menu.pages(), &QAbstractItemModel::rowsInserted);
    const QSignalSpy changed(menu.pages(), &QAbstractItemModel::dataChanged);
    menu.setMenu(menuOf({page("a"), page("b"), page("c")}));
    ASSERT_EQ(inserted.count(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 1);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(last.row(), 2);
}

TEST_F(WindowMenu, GetsFromAnyMenuToAnyOtherWithoutAReset)
{
    const QSignalSpy resets(menu.pages(), &QAbstractItemModel::modelReset);
    std::mt19937 random(7);
    for (int round = 0; round < 500; ++round) {
        Rows rows;
        for (std::size_t count = random() % 8; count > 0; --count) rows.push_back(page(std::to_string(random() % 5)));
        int mirrored = menu.pages()->rowCount();
        const auto insertion = QObject::connect(menu.pages(), &QAbstractItemModel::rowsInserted,
            [&](const QModelIndex&, int first, int last) { mirrored += last - first + 1; });
        const auto removal = QObject::connect(menu.pages(), &QAbstractItemModel::rowsRemoved,
            [&](const QModelIndex&, int first, int last) { mirrored -= last - first + 1; });
        menu.setMenu(menuOf(rows));
        QObject::disconnect(insertion);
        QObject::disconnect(removal);

        QStringList expected{"Down", "-"};
        for (const auto& row : rows) expected << QString::fromStdString(row.title);
        expected << "About Kestrune"
                 << "-"
                 << "Quit";
        ASSERT_EQ(titles(menu), expected);
        ASSERT_EQ(mirrored, rows.size());
    }
    EXPECT_EQ(resets.count(), 0);
}

}  // namespace

}  // namespace larkspan::bridge
