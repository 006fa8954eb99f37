#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "incidents/IncidentsOfAPage.h"
#include "maintenances/MaintenancesOfAPage.h"

namespace larkspan::presentation {

namespace {

using platform::HttpResponse;
using Words = std::vector<std::string>;

template <typename List>
class FormOverAList : public List {
protected:
    FormOverAList()
    {
        this->serve({this->record("1")});
        this->appear();
        this->openForm();
        this->run();
        this->transport.requests.clear();
        // Some events are sent to the URL of their list.
        this->transport.forget(this->listURL);
    }

    void save()
    {
        this->view->form()->title = "New";
        this->view->form()->save();
        this->run();
    }

    void answer(int status, const std::string& body = "")
    {
        this->transport.answer(HttpResponse{status, body});
        this->run();
    }
};

using Lists = testing::Types<incidents::IncidentsOfAPage, maintenances::MaintenancesOfAPage>;
TYPED_TEST_SUITE(FormOverAList, Lists, fakes::NameOfAList);

TYPED_TEST(FormOverAList, IsUpWithItsChoicesUntilItIsCancelled)
{
    EXPECT_TRUE(this->isFormUp());
    const auto form = this->view->form();
    EXPECT_EQ(form->pageId, "p");
    EXPECT_EQ(form->selection->groupChoices().size(), 2u);
    this->openForm();
    EXPECT_EQ(this->view->form(), form) << "asked for twice it is one";
    form->close();
    EXPECT_FALSE(this->isFormUp());
    EXPECT_EQ(this->view->form(), nullptr);
    this->run();
    EXPECT_TRUE(this->transport.requests.empty()) << "the list was in sight all the time";
}

TYPED_TEST(FormOverAList, PutsWhatItCreatesAtTheTopWithoutAFetchAndTheNextLoadTakesTheServicesOrder)
{
    this->save();
    this->answer(201, this->record("new"));
    EXPECT_EQ(this->ids(), (Words{"new", "1"}));
    EXPECT_FALSE(this->isFormUp());
    EXPECT_EQ(this->transport.requests.size(), 1u);
    this->serve({this->record("1"), this->record("new")});
    this->appear();
    EXPECT_EQ(this->ids(), (Words{"1", "new"}));
}

TYPED_TEST(FormOverAList, PutsWhatALoadHasBroughtAlreadyAtTheTopOnce)
{
    this->save();
    this->serve({this->record("1"), this->record("new")});
    this->appear();
    this->answer(201, this->record("new"));
    EXPECT_EQ(this->ids(), (Words{"new", "1"}));
}

TYPED_TEST(FormOverAList, StaysUpWhenTheServiceRefuses)
{
    this->save();
    this->answer(422);
    EXPECT_TRUE(this->isFormUp());
    EXPECT_EQ(*this->view->form()->title, "New");
    EXPECT_EQ(this->ids(), Words{"1"});
}

TYPED_TEST(FormOverAList, WhoseAnswerSaysNothingKeepsTheWordsAndShowsTheListAnewBehindIt)
{
    for (const auto* const body : {"", "{}", R"({"id": [1], "title": "New"})"}) {
        this->transport.requests.clear();
        this->transport.forget(this->listURL);
        this->save();
        this->serve({this->record("taken"), this->record("1")});
        this->answer(201, body);
        EXPECT_TRUE(this->isFormUp()) << body;
        EXPECT_EQ(*this->view->form()->title, "New");
        EXPECT_NE(this->view->form()->action->alert.words(), "");
        EXPECT_EQ(this->ids(), (Words{"taken", "1"})) << body;
        EXPECT_EQ(this->transport.requests.size(), 2u) << "the order, and the list once";
    }
}

TYPED_TEST(FormOverAList, WhoseAnswerIsLostShowsTheListAnewBehindIt)
{
    this->save();
    this->serve({this->record("taken"), this->record("1")});
    this->transport.answer(platform::URLError::Code::networkConnectionLost);
    this->run();
    EXPECT_TRUE(this->isFormUp());
    EXPECT_EQ(this->ids(), (Words{"taken", "1"}));
}

TYPED_TEST(FormOverAList, ThatIsRefusedOrNeverSentFetchesNothing)
{
    this->save();
    this->answer(409);
    this->save();
    this->transport.answer(platform::URLError::Code::cannotConnectToHost);
    this->run();
    EXPECT_EQ(this->transport.requests.size(), 2u);
}

TYPED_TEST(FormOverAList, WhoseScreenIsGoneEndsItsRequestForNobody)
{
    this->save();
    const std::weak_ptr held = this->view->form();
    this->view.reset();
    EXPECT_FALSE(held.expired());
    this->answer(201, this->record("new"));
    EXPECT_TRUE(held.expired());
}

TYPED_TEST(FormOverAList, WithATypedTextIsWhatLeavingTheScreenWouldLose)
{
    EXPECT_FALSE(this->view->hasUnsavedText());
    this->view->form()->title = "New";
    EXPECT_TRUE(this->view->hasUnsavedText());
    this->view->form()->close();
    EXPECT_FALSE(this->view->hasUnsavedText());
}

}  // namespace

}  // namespace larkspan::presentation
