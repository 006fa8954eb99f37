#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "bridge/lists/RowListModel.h"
#include "bridge/workspace/StatusPageRowValue.h"

namespace larkspan::bridge {

namespace {

class LettersTyped : public testing::Test {
protected:
    LettersTyped()
    {
        std::vector<workspace::StatusPageRow> rows;
        for (const auto* const title : {"Acme", "Beta", "alpha", "Ärger", "Beacon", "", "a b"}) {
            rows.push_back({.id = std::to_string(rows.size()), .title = title});
        }
        list.update(std::move(rows));
    }

    int meant(const char* letters, int current) const { return list.rowMeantBy(QString::fromUtf8(letters), current); }

    RowListModel<StatusPageRowValue> list;
};

TEST_F(LettersTyped, MeanTheNextRowThatBeginsWithThemInAnyCase)
{
    EXPECT_EQ(meant("b", 0), 1);
    EXPECT_EQ(meant("AL", 0), 2);
    EXPECT_EQ(meant("är", 0), 3);
}

TEST_F(LettersTyped, StayOnTheCurrentRowWhileItBeginsWithThem)
{
    EXPECT_EQ(meant("be", 1), 1);
    EXPECT_EQ(meant("bea", 1), 4);
}

TEST_F(LettersTyped, AgainAndAgainGoFromOneRowToTheNextAndOverTheEnd)
{
    EXPECT_EQ(meant("a", 0), 2);
    EXPECT_EQ(meant("aa", 2), 6);
    EXPECT_EQ(meant("aaa", 6), 0);
}

TEST_F(LettersTyped, MayHoldABlank)
{
    EXPECT_EQ(meant("a b", 0), 6);
}

TEST_F(LettersTyped, FindTheFirstRowWhereNoneIsCurrent)
{
    EXPECT_EQ(meant("ac", -1), 0);
}

TEST_F(LettersTyped, ThatNoRowBeginsWithMeanNone)
{
    EXPECT_EQ(meant("x", 0), -1);
    EXPECT_EQ(meant("", 0), -1);
    EXPECT_EQ(RowListModel<StatusPageRowValue>().rowMeantBy(QStringLiteral("a"), -1), -1);
}

}  // namespace

}  // namespace larkspan::bridge
