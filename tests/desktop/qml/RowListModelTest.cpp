#include "bridge/lists/RowListModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "ProcessorTime.h"
#include "bridge/workspace/StatusPageRowValue.h"

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

    EXPECT_LT(secondsOf([&] { model.update(patched); }), 0.1);
    EXPECT_LT(secondsOf([&] { model.update(reversed); }), 0.2);
    EXPECT_EQ(valueAt(model, 0).id, QStringLiteral("9999"));
    EXPECT_TRUE(resets.empty());
}

TEST_F(RowList, ManyRunsThatComeAndGoAreOneReset)
{
    show(numbered(1'000));
    std::vector<std::string> even;
    for (const auto& id : numbered(1'000)) {
        if ((id.back() - '0') % 2 == 0) even.push_back(id);
    }
    show(even);
    EXPECT_EQ(resets.size(), 1);
    EXPECT_TRUE(removals.empty());
    show(numbered(1'000));
    EXPECT_EQ(resets.size(), 2);
}

TEST_F(RowList, ChangedRowsNextToEachOtherAreToldTogether)
{
    show(numbered(10));
    auto rows = rowsOf(numbered(10));
    for (const std::size_t row : {2u, 3u, 4u, 7u}) rows[row].status.text = "Down";
    model.update(rows);
    ASSERT_EQ(changes.size(), 2);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 2);
    EXPECT_EQ(changes[0][1].toModelIndex().row(), 4);
    EXPECT_EQ(changes[1][1].toModelIndex().row(), 7);
}

TEST(RowListOfAHundredThousand, IsPatchedInAMomentWhateverChanged)
{
    Rows model;
    auto ids = numbered(100'000);
    model.update(rowsOf(ids));
    auto shuffled = ids;
    std::ranges::shuffle(shuffled, std::mt19937(3));
    auto moved = shuffled;
    std::rotate(moved.begin(), moved.begin() + 50, moved.end());
    std::vector<std::string> thinned;
    for (std::size_t at = 0; at < ids.size(); at += 3) thinned.push_back(ids[at]);
    std::vector<std::string> spread(ids);
    for (std::size_t at = 0; at < spread.size(); at += 1'000) spread[at] += " new";

    for (const auto& wanted : {shuffled, moved, thinned, ids, spread}) {
        auto rows = rowsOf(wanted);
        EXPECT_LT(secondsOf([&] { model.update(std::move(rows)); }), 3.0)
            << "a thirtieth of it with optimisation; a row at a time it was 48 seconds";
        EXPECT_EQ(model.rowCount(), static_cast<int>(wanted.size()));
        EXPECT_EQ(valueAt(model, 1).id.toStdString(), wanted[1]);
    }
}

}  // namespace

}  // namespace larkspan::bridge
