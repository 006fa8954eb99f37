#include "presentation/screens/RecordList.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace larkspan::presentation {

namespace {

struct Named {
    std::string id;
    std::string name;

    bool operator==(const Named&) const = default;
};

using Records = std::vector<Named>;

struct Owner final : support::Observable {
    RecordList<Named> list{*this};
};

class PatchedList : public testing::Test {
protected:
    PatchedList() { list = Records{{"a", "1"}, {"b", "2"}, {"a", "3"}}; }

    Owner owner;
    RecordList<Named>& list = owner.list;
};

TEST_F(PatchedList, HasTheFirstRecordOfAnIdOrNone)
{
    EXPECT_EQ(list.find("a")->name, "1");
    EXPECT_EQ(list.find("c"), nullptr);
}

TEST_F(PatchedList, TakesAChangedRecordInThePlaceOfTheFirstOfItsId)
{
    list.replace({"a", "new"});
    EXPECT_EQ(*list, (Records{{"a", "new"}, {"b", "2"}, {"a", "3"}}));
}

TEST_F(PatchedList, TakesNoChangedRecordThatItDoesNotHave)
{
    int changes = 0;
    const auto subscription = owner.objectWillChange([&changes] { ++changes; });
    list.replace({"c", "new"});
    EXPECT_EQ(list->size(), 3u);
    EXPECT_EQ(changes, 0);
}

TEST_F(PatchedList, LosesEveryRecordOfAnIdAndKeepsTheOrderOfTheOthers)
{
    list.insertFirst({"c", "0"});
    list.remove("a");
    EXPECT_EQ(*list, (Records{{"c", "0"}, {"b", "2"}}));
    list.remove("none");
    EXPECT_EQ(list->size(), 2u);
}

TEST_F(PatchedList, HasANewRecordAtItsHeadOnce)
{
    list.insertFirst({"b", "new"});
    EXPECT_EQ(*list, (Records{{"b", "new"}, {"a", "1"}, {"a", "3"}}));
}

}  // namespace

}  // namespace larkspan::presentation
