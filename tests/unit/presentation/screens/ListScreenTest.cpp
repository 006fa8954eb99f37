#include "presentation/screens/ListScreen.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "incidents/IncidentsOfAPage.h"
#include "maintenances/MaintenancesOfAPage.h"
#include "monitors/MonitorsOfAPage.h"

namespace larkspan::presentation {

namespace {

using platform::HttpResponse;
using Words = std::vector<std::string>;
using Lists = testing::Types<incidents::IncidentsOfAPage, maintenances::MaintenancesOfAPage, monitors::MonitorsOfAPage>;

template <typename List>
class RecordsOnAPage : public List {
protected:
    /// Makes the service refuse the list from now on.
    void refuse() { this->transport.script(this->listURL, 500, ""); }

    Content content() const { return this->view->content(); }
};

TYPED_TEST_SUITE(RecordsOnAPage, Lists, fakes::NameOfAList);

TYPED_TEST(RecordsOnAPage, DuringTheFirstLoadAreProgress)
{
    this->view->appear();
    EXPECT_EQ(this->content(), Content::loading);
    EXPECT_EQ(this->view->placeholder(), (Placeholder{.text = this->loadingText, .showsProgress = true}));
}

TYPED_TEST(RecordsOnAPage,
    AFailedFirstLoadShowsTheFailureTextAndRetryReturnsToTheSpinnerBecauseTheListIsEmptyAndThenShowsTheList)
{
    this->refuse();
    this->appear();
    EXPECT_EQ(this->content(), Content::failure);
    EXPECT_EQ(this->view->placeholder(),
        (Placeholder{.symbol = "exclamationmark.triangle",
            .tone = Tone::yellow,
            .text = "Server returned HTTP status code 500.",
            .offersRetry = true}));
    this->serve({this->record("1")});
    this->view->refresh();
    EXPECT_EQ(this->content(), Content::loading) << "because the list is empty";
    this->run();
    EXPECT_EQ(this->content(), Content::records);
    EXPECT_EQ(this->view->placeholder(), Placeholder{});
}

TYPED_TEST(RecordsOnAPage, KeepTheirRowsAndShowNoErrorWhileAReloadRunsAndWhenItFails)
{
    this->serve({this->record("1")});
    this->appear();
    this->refuse();
    this->view->refresh();
    EXPECT_EQ(this->content(), Content::records);
    this->run();
    EXPECT_EQ(this->content(), Content::records);
    EXPECT_EQ(this->ids(), Words{"1"});
    EXPECT_EQ(this->view->placeholder(), Placeholder{});
    EXPECT_TRUE(*this->view->viewModel->error);
}

TYPED_TEST(RecordsOnAPage, LoadedTwiceAtOnceAreThoseOfTheLastToFinish)
{
    this->view->appear();
    this->view->refresh();
    this->run();
    ASSERT_EQ(this->transport.pending.size(), 2u);
    this->transport.answer(HttpResponse{200, "[" + this->record("1") + "]"});
    this->run();
    EXPECT_EQ(this->ids(), Words{"1"});
    this->transport.answer(HttpResponse{200, "[" + this->record("2") + "]"});
    this->run();
    EXPECT_EQ(this->ids(), Words{"2"});
}

TYPED_TEST(RecordsOnAPage, AreWorthAPromptOfTheStoreOnlyWhenTheUserAsks)
{
    this->appear();
    EXPECT_EQ(this->credentials.promptsAllowed, 0);
    this->view->refresh();
    EXPECT_EQ(this->credentials.promptsAllowed, 1);
}

TYPED_TEST(RecordsOnAPage, ThatAreLeftDuringALoadAreFreedAfterIt)
{
    this->appear();
    const std::weak_ptr held = this->view->viewModel;
    this->view.reset();
    EXPECT_FALSE(held.expired());
    this->transport.answer(HttpResponse{200, "[]"});
    this->run();
    EXPECT_TRUE(held.expired());
}

TYPED_TEST(RecordsOnAPage, TellTheirObserversOfLoadsAndOfWhatStandsInFront)
{
    this->serve({this->record("1")});
    int changes = 0;
    const auto subscriptions = this->view->observe([&changes] { ++changes; });
    this->appear();
    EXPECT_GT(changes, 0);
    const int before = changes;
    this->open("1");
    EXPECT_EQ(changes, before + 1);
}

TYPED_TEST(RecordsOnAPage, WithOneIdHaveRowsThatAreToldApart)
{
    this->serve({this->record("1"), this->record("2"), this->record("1")});
    this->appear();
    const auto ids = this->ids();
    ASSERT_EQ(ids.size(), 3u);
    EXPECT_EQ(ids[0], "1");
    EXPECT_EQ(ids[1], "2");
    EXPECT_NE(ids[2], ids[0]);
    const auto* const third = &this->view->viewModel->records->at(2);
    EXPECT_EQ(this->view->viewModel->records.find(ids[2]), third);
}

}  // namespace

}  // namespace larkspan::presentation
