#include "bridge/StatusPageListModel.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace larkspan::bridge {

namespace {

using Row = StatusPageListModel::Row;

std::vector<Row> rowsOf(const std::vector<std::string>& ids)
{
    std::vector<Row> rows;
    for (const auto& id : ids) rows.push_back({.id = id, .name = "page " + id, .symbol = "s", .label = "l"});
    return rows;
}

std::vector<std::string> numbered(int count)
{
    std::vector<std::string> ids;
    for (int number = 0; number < count; ++number) ids.push_back(std::to_string(number));
    return ids;
}

class StatusPageList : public testing::Test {
protected:
    std::vector<std::string> shown() const
    {
        std::vector<std::string> ids;
        for (int row = 0; row < model.rowCount(); ++row) {
            ids.push_back(model.data(model.index(row), StatusPageListModel::IdRole).toString().toStdString());
        }
        return ids;
    }

    void show(const std::vector<std::string>& ids)
    {
        model.update(rowsOf(ids));
        ASSERT_EQ(shown(), ids);
    }

    StatusPageListModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSignalSpy resets{&model, &QAbstractItemModel::modelReset};
    QSignalSpy insertions{&model, &QAbstractItemModel::rowsInserted};
    QSignalSpy removals{&model, &QAbstractItemModel::rowsRemoved};
    QSignalSpy moves{&model, &QAbstractItemModel::rowsMoved};
    QSignalSpy changes{&model, &QAbstractItemModel::dataChanged};
};

TEST_F(StatusPageList, GivesEachRoleOfARow)
{
    model.update({{.id = "7",
        .name = "Acme",
        .symbol = "xmark.octagon.fill",
        .tone = presentation::Tone::red,
        .label = "Down"}});
    const auto index = model.index(0);
    EXPECT_EQ(model.data(index, StatusPageListModel::NameRole).toString(), QStringLiteral("Acme"));
    EXPECT_EQ(model.data(index, StatusPageListModel::SymbolRole).toString(), QStringLiteral("xmark.octagon.fill"));
    EXPECT_EQ(model.data(index, StatusPageListModel::ToneRole).toInt(), static_cast<int>(presentation::Tone::red));
    EXPECT_EQ(model.data(index, StatusPageListModel::LabelRole).toString(), QStringLiteral("Down"));
}

TEST_F(StatusPageList, ARefreshThatChangesNothingNotifiesOfNothing)
{
    show({"a", "b"});
    insertions.clear();
    show({"a", "b"});
    EXPECT_TRUE(insertions.empty() && removals.empty() && moves.empty() && changes.empty());
}

TEST_F(StatusPageList, AChangedRowIsPatchedAlone)
{
    show({"a", "b", "c"});
    auto rows = rowsOf({"a", "b", "c"});
    rows[1].label = "Down";
    model.update(rows);
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 1);
}

TEST_F(StatusPageList, NewRowsComeInAsOneRunAndVanishedOnesGoAsOne)
{
    show({"a", "z"});
    insertions.clear();
    show({"a", "b", "c", "d", "z"});
    EXPECT_EQ(insertions.size(), 1);
    show({"a", "z"});
    EXPECT_EQ(removals.size(), 1);
}

TEST_F(StatusPageList, ARowThatMovesKeepsItsPlaceInWhoeverHoldsIt)
{
    show({"a", "b", "c"});
    const QPersistentModelIndex held = model.index(2);
    show({"c", "a", "b"});
    EXPECT_EQ(held.row(), 0);
    EXPECT_EQ(moves.size(), 1);
}

TEST_F(StatusPageList, OneRowThatGoesFromTheTopToTheEndIsOneMove)
{
    auto ids = numbered(1'000);
    show(ids);
    std::rotate(ids.begin(), ids.begin() + 1, ids.end());
    show(ids);
    EXPECT_EQ(moves.size(), 1);
}

TEST_F(StatusPageList, AWholeListInAnotherOrderKeepsWhoeverHoldsARow)
{
    auto ids = numbered(1'000);
    show(ids);
    const QPersistentModelIndex held = model.index(10);
    std::ranges::reverse(ids);
    show(ids);
    EXPECT_EQ(held.row(), 989);
    EXPECT_TRUE(resets.empty());
}

TEST_F(StatusPageList, AnIdThatTheServiceGivesTwiceIsShownTwice)
{
    show({"a", "a", "b"});
    show({"b", "a", "a"});
    show({"a"});
    show({"a", "b", "a", "b"});
    show({});
}

TEST_F(StatusPageList, GetsFromAnyListToAnyOtherWithoutAReset)
{
    std::mt19937 random(1);
    for (int round = 0; round < 200; ++round) {
        auto ids = numbered(12);
        std::ranges::shuffle(ids, random);
        ids.resize(random() % 13);
        show(ids);
    }
    EXPECT_TRUE(resets.empty());
}

TEST(StatusPageListOfTenThousand, IsPatchedAndTurnedRoundInAMomentWithoutAReset)
{
    StatusPageListModel model;
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    auto ids = numbered(10'000);
    model.update(rowsOf(ids));
    auto patched = rowsOf(ids);
    patched[5'000].label = "Down";
    std::ranges::reverse(ids);
    const auto reversed = rowsOf(ids);

    QElapsedTimer timer;
    timer.start();
    model.update(patched);
    EXPECT_LT(timer.restart(), 100);
    model.update(reversed);
    EXPECT_LT(timer.elapsed(), 200);
    EXPECT_EQ(model.data(model.index(0), StatusPageListModel::IdRole).toString(), QStringLiteral("9999"));
    EXPECT_TRUE(resets.empty());
}

}  // namespace

}  // namespace larkspan::bridge
