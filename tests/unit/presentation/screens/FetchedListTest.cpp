#include "presentation/screens/FetchedList.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "api/APIError.h"
#include "fakes/ManualExecutor.h"
#include "support/Completion.h"
#include "support/LocalizedError.h"

namespace larkspan::presentation {

namespace {

using Numbers = std::vector<int>;
using Answer = support::Completion<Numbers>;
using Answers = std::vector<Answer>;
using Outcome = support::Outcome<Numbers>;

class ListOfNumbers final : public FetchedList<int> {
public:
    using FetchedList::FetchedList;
};

support::Task<Numbers> fetchNumbers(std::shared_ptr<Answers> pending)
{
    auto waiting = support::completion<Numbers>([pending](Answer answer) { pending->push_back(std::move(answer)); });
    Numbers numbers = co_await std::move(waiting);
    co_return numbers;
}

Outcome failure()
{
    return Outcome::failure(std::make_exception_ptr(api::APIError::httpStatus(500)));
}

class ListOfAScreen : public testing::Test {
protected:
    /// Ends the load at `place`, counted from the oldest.
    void answer(std::size_t place, Outcome outcome)
    {
        auto chosen = pending->begin() + static_cast<std::ptrdiff_t>(place);
        auto taken = std::move(*chosen);
        pending->erase(chosen);
        taken.give(std::move(outcome));
        main.run();
    }

    void load()
    {
        list->load();
        main.run();
    }

    std::string error() const { return *list->error ? support::localizedDescription(*list->error) : "none"; }

    fakes::ManualExecutor main;
    std::shared_ptr<Answers> pending = std::make_shared<Answers>();
    std::shared_ptr<ListOfNumbers> list
        = std::make_shared<ListOfNumbers>(main, [answers = pending] { return fetchNumbers(answers); });
};

TEST_F(ListOfAScreen, BeforeItsFirstLoadIsEmptyIdleAndWithoutAnError)
{
    EXPECT_EQ(list->content(), Content::empty);
    EXPECT_EQ(error(), "none");
}

TEST_F(ListOfAScreen, IsMarkedAtOnceAndUntilTheLoadEnds)
{
    list->load();
    EXPECT_TRUE(*list->isLoading);
    EXPECT_EQ(list->content(), Content::loading);
    main.run();
    EXPECT_TRUE(*list->isLoading);
    answer(0, Outcome::success({3, 1, 2}));
    EXPECT_FALSE(*list->isLoading);
    EXPECT_EQ(*list->records, (Numbers{3, 1, 2})) << "in the order that they came in";
    EXPECT_EQ(list->content(), Content::records);
}

TEST_F(ListOfAScreen, ThatCouldNotBeLoadedKeepsTheErrorUntilTheNextLoadBegins)
{
    load();
    answer(0, failure());
    EXPECT_EQ(error(), "Server returned HTTP status code 500.");
    EXPECT_EQ(list->content(), Content::failure);
    list->load();
    EXPECT_EQ(error(), "none");
    EXPECT_EQ(list->content(), Content::loading);
    main.run();
    answer(0, Outcome::success({}));
    EXPECT_EQ(list->content(), Content::empty);
}

TEST_F(ListOfAScreen, KeepsItsRecordsWhileALoadRunsAndWhenItFails)
{
    load();
    answer(0, Outcome::success({1}));
    load();
    EXPECT_EQ(list->content(), Content::records);
    answer(0, failure());
    EXPECT_EQ(*list->records, Numbers{1});
    EXPECT_EQ(list->content(), Content::records);
    EXPECT_FALSE(*list->isLoading);
}

TEST_F(ListOfAScreen, LoadedTwiceAtOnceShowsWhatTheLastToFinishBrings)
{
    load();
    load();
    ASSERT_EQ(pending->size(), 2u);
    answer(1, Outcome::success({2}));
    EXPECT_FALSE(*list->isLoading);
    answer(0, Outcome::success({1}));
    EXPECT_EQ(*list->records, Numbers{1});
}

TEST_F(ListOfAScreen, LoadedTwiceAtOnceForgetsTheFailureOfTheFirstToFinish)
{
    load();
    load();
    answer(0, failure());
    answer(0, Outcome::success({}));
    EXPECT_EQ(error(), "none");
    EXPECT_EQ(list->content(), Content::empty);
}

TEST_F(ListOfAScreen, LoadedTwiceAtOnceKeepsTheFailureOfTheLastToFinish)
{
    load();
    load();
    answer(0, Outcome::success({}));
    answer(0, failure());
    EXPECT_EQ(list->content(), Content::failure);
}

TEST_F(ListOfAScreen, OfAScreenThatIsGoneIsStillThereForTheLoadThatRuns)
{
    load();
    const std::weak_ptr<ListOfNumbers> held = list;
    list.reset();
    EXPECT_FALSE(held.expired());
    answer(0, Outcome::success({1}));
    EXPECT_TRUE(held.expired());
}

TEST_F(ListOfAScreen, TellsOfItsRecordsBeforeItTellsOfTheEnd)
{
    load();
    std::vector<std::string> told;
    const auto subscription = list->objectWillChange(
        [&] { told.push_back(std::to_string(list->records->size()) + (*list->isLoading ? " loading" : " idle")); });
    answer(0, Outcome::success({7, 8}));
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.front(), "0 loading") << "before the records land";
    EXPECT_EQ(told.back(), "2 loading") << "before the mark goes";
}

}  // namespace

}  // namespace larkspan::presentation
