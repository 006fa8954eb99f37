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

MenuRowValue rowAt(StatusMenuBridge& menu, int place)
{
    return menu.rows()->data(menu.rows()->index(place), ListModel::RowRole).value<MenuRowValue>();
}

class WindowMenu : public testing::Test {
protected:
    static QStringList titles(StatusMenuBridge& menu)
    {
        QStringList found;
        for (int place = 0; place < menu.rows()->rowCount(); ++place) {
            const auto row = rowAt(menu, place);
            found << (row.isSeparator ? QStringLiteral("-") : row.title);
        }
        return found;
    }

    int abouts = 0;
    Rows performed;
    StatusMenuBridge menu{[this] { ++abouts; }};
};

TEST_F(WindowMenu, HasTheAboutBoxBelowThePanelsRowsAndFromTheStart)
{
    EXPECT_EQ(titles(menu), (QStringList{"-", "About Kestrune"}));
    menu.setMenu({information("Down"), page("a"), quit()});
    EXPECT_EQ(titles(menu), (QStringList{"Down", "Page a", "Quit", "-", "About Kestrune"}));
    menu.choose(4);
    EXPECT_EQ(abouts, 1);
}

TEST_F(WindowMenu, TellsWhatARowIs)
{
    menu.setMenu({information("Down"), page("a"), quit()});
    EXPECT_FALSE(rowAt(menu, 0).isCommand);
    EXPECT_TRUE(rowAt(menu, 1).isCommand);
    EXPECT_TRUE(rowAt(menu, 1).hasDot);
    EXPECT_EQ(rowAt(menu, 1).help, QStringLiteral("Operational"));
    EXPECT_EQ(rowAt(menu, 2).shortcut, QStringLiteral("Ctrl+Q"));
    EXPECT_EQ(rowAt(menu, 0).shortcut, QString());
}

TEST_F(WindowMenu, PerformsCommandsAsLastGivenAndNothingElse)
{
    menu.show([this](const MenuRow& row) { performed.push_back(row); });
    menu.setMenu({information("Down"), page("a"), quit()});
    for (const int place : {-1, 0, 1, 3, 99}) menu.choose(place);
    EXPECT_EQ(performed, Rows{page("a")});
}

TEST_F(WindowMenu, WithNobodyToPerformHarmsNothing)
{
    menu.setMenu({quit()});
    menu.choose(0);
}

TEST_F(WindowMenu, SkipsWhatIsNoCommandInBothDirections)
{
    menu.setMenu({information("Down"), page("a"), MenuRow{}, quit()});
    EXPECT_EQ(menu.nextCommand(-1, 1), 1);
    EXPECT_EQ(menu.nextCommand(1, 1), 3);
    EXPECT_EQ(menu.nextCommand(3, 1), 5) << "the about box";
    EXPECT_EQ(menu.nextCommand(5, 1), 5) << "the last one";
    EXPECT_EQ(menu.nextCommand(3, -1), 1);
    EXPECT_EQ(menu.nextCommand(1, -1), 1) << "the first one";
}

TEST_F(WindowMenu, FindsARowByItsKeyWhateverTheCase)
{
    menu.setMenu({information("Down"), quit()});
    EXPECT_EQ(menu.placeOfKey("Q"), 1);
    EXPECT_EQ(menu.placeOfKey("q"), 1);
    EXPECT_EQ(menu.placeOfKey("x"), -1);
    EXPECT_EQ(menu.placeOfKey(""), -1);
}

TEST_F(WindowMenu, AChangedTextIsPatchedInPlace)
{
    menu.setMenu({information("Updated 1s ago"), page("a"), quit()});
    const QSignalSpy changed(menu.rows(), &QAbstractItemModel::dataChanged);
    const QSignalSpy inserted(menu.rows(), &QAbstractItemModel::rowsInserted);
    const QSignalSpy removed(menu.rows(), &QAbstractItemModel::rowsRemoved);
    menu.setMenu({information("Updated 2s ago"), page("a"), quit()});
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 0);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 0);
    EXPECT_EQ(inserted.count() + removed.count(), 0);
}

TEST_F(WindowMenu, WhileItIsOpenItsTextsChangeInPlaceAndOtherRowsWaitUntilItIsClosed)
{
    menu.show([this](const MenuRow& row) { performed.push_back(row); });
    menu.setMenu({information("Operational"), page("a"), quit()});
    menu.setOpen(true);
    menu.setMenu({information("Down"), page("a"), quit()});
    const QStringList held{"Down", "Page a", "Quit", "-", "About Kestrune"};
    EXPECT_EQ(titles(menu), held);
    menu.setMenu({information("Down"), information("Network Offline"), page("b"), quit()});
    EXPECT_EQ(titles(menu), held);
    menu.setMenu({information("Down"), page("b"), quit()});
    EXPECT_EQ(titles(menu), held) << "as many, but another page";
    menu.choose(1);
    EXPECT_EQ(performed, Rows{page("a")});
    menu.setOpen(false);
    EXPECT_EQ(titles(menu), (QStringList{"Down", "Page b", "Quit", "-", "About Kestrune"}));
}

TEST_F(WindowMenu, AnUnchangedMenuTellsNothing)
{
    menu.setMenu({information("Down"), quit()});
    const QSignalSpy changed(menu.rows(), &QAbstractItemModel::dataChanged);
    menu.setMenu({information("Down"), quit()});
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(WindowMenu, ARowThatComesLeavesTheOthersAlone)
{
    menu.setMenu({page("a"), page("c"), quit()});
    const QPersistentModelIndex last = menu.rows()->index(2);
    const QSignalSpy inserted(menu.rows(), &QAbstractItemModel::rowsInserted);
    const QSignalSpy changed(menu.rows(), &QAbstractItemModel::dataChanged);
    menu.setMenu({page("a"), page("b"), page("c"), quit()});
    ASSERT_EQ(inserted.count(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 1);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(last.row(), 3);
}

TEST_F(WindowMenu, GetsFromAnyMenuToAnyOtherWithoutAReset)
{
    const QSignalSpy resets(menu.rows(), &QAbstractItemModel::modelReset);
    std::mt19937 random(7);
    for (int round = 0; round < 500; ++round) {
        Rows rows;
        for (std::size_t count = random() % 8; count > 0; --count) rows.push_back(page(std::to_string(random() % 5)));
        QStringList mirrored = titles(menu);
        const auto insertion = QObject::connect(
            menu.rows(), &QAbstractItemModel::rowsInserted, [&](const QModelIndex&, int first, int last) {
                for (int at = first; at <= last; ++at) mirrored.insert(at, QString());
            });
        const auto removal = QObject::connect(menu.rows(), &QAbstractItemModel::rowsRemoved,
            [&](const QModelIndex&, int first, int last) { mirrored.remove(first, last - first + 1); });
        menu.setMenu(rows);
        QObject::disconnect(insertion);
        QObject::disconnect(removal);

        QStringList expected;
        for (const auto& row : rows) expected << QString::fromStdString(row.title);
        expected << "-"
                 << "About Kestrune";
        ASSERT_EQ(titles(menu), expected);
        ASSERT_EQ(mirrored.size(), expected.size());
    }
    EXPECT_EQ(resets.count(), 0);
}

}  // namespace

}  // namespace larkspan::bridge
