#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "fakes/ManualExecutor.h"
#include "presentation/FetchedList.h"

namespace larkspan::presentation {

namespace {

struct Named {
    std::string id;
    std::string name;

    bool operator==(const Named&) const = default;
};

class NamedList final : public FetchedList<Named> {
public:
    using FetchedList::FetchedList;
};

support::Task<std::vector<Named>> fetchNothing()
{
    co_return std::vector<Named>{};
}

class PatchedList : public testing::Test {
protected:
    PatchedList() { list->records = Records{{"a", "1"}, {"b", "2"}, {"a", "3"}}; }

    using Records = std::vector<Named>;

    fakes::ManualExecutor main;
    std::shared_ptr<NamedList> list = std::make_shared<NamedList>(main, [] { return fetchNothing(); });
};

TEST_F(PatchedList, TakesAChangedRecordInThePlaceOfTheFirstOfItsId)
{
    list->records.replace({"a", "new"});
    EXPECT_EQ(*list->records, (Records{{"a", "new"}, {"b", "2"}, {"a", "3"}}));
}

TEST_F(PatchedList, TakesNoChangedRecordThatItDoesNotHave)
{
    int changes = 0;
    const auto subscription = list->objectWillChange([&changes] { ++changes; });
    list->records.replace({"c", "new"});
    EXPECT_EQ(list->records->size(), 3u);
    EXPECT_EQ(changes, 0);
}

TEST_F(PatchedList, LosesEveryRecordOfAnIdAndKeepsTheOrderOfTheOthers)
{
    list->records.insertFirst({"c", "0"});
    list->records.remove("a");
    EXPECT_EQ(*list->records, (Records{{"c", "0"}, {"b", "2"}}));
    list->records.remove("none");
    EXPECT_EQ(list->records->size(), 2u);
}

TEST_F(PatchedList, HasANewRecordAtItsHeadOnce)
{
    list->records.insertFirst({"b", "new"});
    EXPECT_EQ(*list->records, (Records{{"b", "new"}, {"a", "1"}, {"a", "3"}}));
}

}  // namespace

}  // namespace larkspan::presentation
