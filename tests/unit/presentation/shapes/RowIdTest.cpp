#include "presentation/shapes/RowId.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "presentation/screens/RowsOf.h"

namespace larkspan::presentation {

namespace {

struct Record {
    std::string id;
    std::string name;
};

using Records = std::vector<Record>;

/// The names of the records that the rows lead to.
std::vector<std::string> namesBehindRowsOf(const Records& records)
{
    std::vector<std::string> names;
    for (const auto& row : rowsOf(records, [](const Record& record) { return record; })) {
        const auto* const found = recordOfRow(records, row.id);
        names.push_back(found ? found->name : "none");
    }
    return names;
}

TEST(RowId, IsThatOfARecordThatIsAloneWithIt)
{
    RowIds ids(Records{{"1", "a"}, {"2", "b"}, {"", "c"}});
    EXPECT_EQ(ids.next("1"), "1");
    EXPECT_EQ(ids.next("2"), "2");
    EXPECT_EQ(ids.next(""), "");
}

TEST(RowId, LeadsToItsOwnOfSeveralRecordsWithOneId)
{
    EXPECT_EQ(namesBehindRowsOf({{"1", "a"}, {"2", "b"}, {"1", "c"}, {"1", "d"}, {"2", "e"}, {"", "f"}, {"", "g"}}),
        (std::vector<std::string>{"a", "b", "c", "d", "e", "f", "g"}));
}

TEST(RowId, OfARecordThatHasGoneLeadsNowhere)
{
    RowIds ids(Records{{"1", "a"}, {"1", "b"}});
    ids.next("1");
    const auto second = ids.next("1");
    EXPECT_EQ(recordOfRow(Records{{"1", "a"}}, second), nullptr);
    EXPECT_EQ(recordOfRow(Records{}, "1"), nullptr);
}

TEST(RowId, LooksLikeNothingThatAnIdMayHold)
{
    const Records records{{"1\x1F", "a"},
        {"1\x1F"
         "1",
            "b"},
        {"\x1F", "c"}, {"1\x1Fx", "d"}};
    EXPECT_EQ(namesBehindRowsOf(records), (std::vector<std::string>{"a", "b", "c", "d"}));
}

}  // namespace

}  // namespace larkspan::presentation
