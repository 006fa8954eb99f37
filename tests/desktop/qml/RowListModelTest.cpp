#include "bridge/RowListModel.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "bridge/values/StatusPageRowValue.h"

namespace larkspan::bridge {

namespace {

using Rows = RowListModel<StatusPageRowValue>;
using Row = Rows::Row;

std::vector<Row> rowsOf(const std::vector<std::string>& ids)
{
    std::vector<Row> rows;
    for (const auto& id : ids) rows.push_back({.id = id, .title = "page " + id, .symbol = "s"});
    return rows;
}

std::vector<std::string> numbered(int count)
{
    std::vector<std::string> ids;
    for (int number = 0; number < count; ++number) ids.push_back(std::to_string(number));
    return ids;
}

StatusPageRowValue valueAt(const Rows& model, int row)
{
    return model.data(model.index(row), ListModel::RowRole).value<StatusPageRowValue>();
}

class RowList : public testing::Test {
protected:
    std::vector<std::string> shown() const
    {
        std::vector<std::string> ids;
        for (int row = 0; row < model.rowCount(); ++row) {
            ids.push_back(valueAt(model, row).id.toStdString());
        }
        return ids;
    }

    void show(const std::vector<std::string>& ids)
    {
        model.update(rowsOf(ids));
        ASSERT_EQ(shown(), ids);
    }

    Rows model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSignalSpy resets{&model, &QAbstractItemModel::modelReset};
    QSignalSpy insertions{&model, &QAbstractItemModel::rowsInserted};
    QSignalSpy removals{&model, &QAbstractItemModel::rowsRemoved};
    QSignalSpy moves{&model, &QAbstractItemModel::rowsMoved};
    QSignalSpy changes{&model, &QAbstractItemModel::dataChanged};
};

TEST_F(RowList, GivesARowAsOneValueOfItsOwnType)
{
    model.update({{.id = "7",
        .title = "Acme",
        .symbol = "xmark.octagon.fill",
        .tone = presentation::Tone::red,
        .status = {.text = "Down", .tone = presentation::Tone::red}}});
    const auto row = valueAt(model, 0);
    EXPECT_EQ(row.id, QStringLiteral("7"));
    EXPECT_EQ(row.title, QStringLiteral("Acme"));
    EXPECT_EQ(row.symbol, QStringLiteral("xmark.octagon.fill"));
    EXPECT_EQ(row.tone, Tone::Red);
    EXPECT_EQ(row.status, (PillValue{QStringLiteral("Down"), Tone::Red}));
    EXPECT_EQ(model.roleNames(), (QHash<int, QByteArray>{{ListModel::RowRole, "row"}}));
}

TEST_F(RowList, ARefreshThatChangesNothingNotifiesOfNothing)
{
    show({"a", "b"});
    insertions.clear();
    show({"a", "b"});
    EXPECT_TRUE(insertions.empty() && removals.empty() && moves.empty() && changes.empty());
}

TEST_F(RowList, AChangedRowIsPatchedAlone)
{
    show({"a", "b", "c"});
    auto rows = rowsOf({"a", "b", "c"});
    rows[1].status.text = "Down";
    model.update(rows);
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 1);
}

TEST_F(RowList, NewRowsComeInAsOneRunAndVanishedOnesGoAsOne)
{
    show({"a", "z"});
    insertions.clear();
    show({"a", "b", "c", "d", "z"});
    EXPECT_EQ(insertions.size(), 1);
    show({"a", "z"});
    EXPECT_EQ(removals.size(), 1);
}

TEST_F(RowList, ARowThatMovesKeepsItsPlaceInWhoeverHoldsIt)
{
    show({"a", "b", "c"});
    const QPersistentModelIndex held = model.index(2);
    show({"c", "a", "b"});
    EXPECT_EQ(held.row(), 0);
    EXPECT_EQ(moves.size(), 1);
}

TEST_F(RowList, OneRowThatGoesFromTheTopToTheEndIsOneMove)
{
    auto ids = numbered(1'000);
    show(ids);
    std::rotate(ids.begin(), ids.begin() + 1, ids.end());
    show(ids);
    EXPECT_EQ(moves.size(), 1);
}

TEST_F(RowList, AWholeListInAnotherOrderKeepsWhoeverHoldsARow)
{
    auto ids = numbered(1'000);
    show(ids);
    const QPersistentModelIndex held = model.index(10);
    std::ranges::reverse(ids);
    show(ids);
    EXPECT_EQ(held.row(), 989);
    EXPECT_TRUE(resets.empty());
}

TEST_F(RowList, AnIdThatTheServiceGivesTwiceIsShownTwice)
{
    show({"a", "a", "b"});
    show({"b", "a", "a"});
    show({"a"});
    show({"a", "b", "a", "b"});
    show({});
}

TEST_F(RowList, GetsFromAnyListToAnyOtherWithoutAReset)
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

TEST(RowListOfTenThousand, IsPatchedAndTurnedRoundInAMomentWithoutAReset)
{
    Rows model;
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    auto ids = numbered(10'000);
    model.update(rowsOf(ids));
    auto patched = rowsOf(ids);
    patched[5'000].status.text = "Down";
    std::ranges::reverse(ids);
    const auto reversed = rowsOf(ids);

    QElapsedTimer timer;
    timer.start();
    model.update(patched);
    EXPECT_LT(timer.restart(), 100);
    model.update(reversed);
    EXPECT_LT(timer.elapsed(), 200);
    EXPECT_EQ(valueAt(model, 0).id, QStringLiteral("9999"));
    EXPECT_TRUE(resets.empty());
}

}  // namespace

}  // namespace larkspan::bridge
