#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "maintenances/MaintenancesOfAPage.h"

namespace larkspan::maintenances {

namespace {

using platform::HttpResponse;
using presentation::Content;

class OpenedMaintenance : public MaintenancesOfAPage {
protected:
    OpenedMaintenance()
    {
        serve({record("1"), record("2")});
        appear();
        open("1");
    }

    void edit(const std::string& title)
    {
        view->detail()->beginEditing();
        view->detail()->editedTitle = title;
        view->detail()->saveEdits();
        run();
    }

    std::string firstTitle() const { return view->rows().at(0).title; }

    const std::string changed = R"({"id": "1", "title": "Changed", "status_page_id": "p"})";
};

TEST_F(OpenedMaintenance, StandsInFrontOfTheList)
{
    ASSERT_TRUE(view->presentedMaintenance.isOpen());
    EXPECT_EQ(view->presentedMaintenance.screen()->id(), "1");
    EXPECT_EQ(view->detail()->title(), "Work 1");
}

TEST_F(OpenedMaintenance, IsNoneIfItsRowHasGone)
{
    view->closeMaintenance();
    view->openMaintenance("9");
    EXPECT_FALSE(view->presentedMaintenance.isOpen());
    EXPECT_EQ(view->detail(), nullptr);
}

TEST_F(OpenedMaintenance, ThatIsEditedShowsItInItsRowWithoutAnyFetch)
{
    transport.script(urlOf("1"), 200, changed);
    edit("Changed");
    EXPECT_EQ(firstTitle(), "Changed");
    EXPECT_EQ(transport.requests.size(), 1u);
    EXPECT_EQ(ids(), (Words{"1", "2"})) << "in its place";
    EXPECT_TRUE(view->presentedMaintenance.isOpen());
}

TEST_F(OpenedMaintenance, WhoseRowHasGoneMeanwhileIsPatchedNowhere)
{
    serve({record("2")});
    appear();
    transport.script(urlOf("1"), 200, changed);
    edit("Changed");
    EXPECT_EQ(ids(), Words{"2"});
    EXPECT_EQ(view->detail()->title(), "Changed");
}

TEST_F(OpenedMaintenance, KeepsItsRecordWhenTheListIsLoadedAnew)
{
    serve({changed});
    appear();
    EXPECT_EQ(firstTitle(), "Changed");
    EXPECT_EQ(view->detail()->title(), "Work 1");
}

TEST_F(OpenedMaintenance, ThatIsClosedBringsTheListUpToDate)
{
    serve({changed});
    view->detail()->close();
    EXPECT_FALSE(view->presentedMaintenance.isOpen());
    EXPECT_EQ(view->detail(), nullptr);
    run();
    EXPECT_EQ(firstTitle(), "Changed");
    view->closeMaintenance();
    run();
    EXPECT_EQ(transport.requests.size(), 1u) << "closed twice loads once";
}

TEST_F(OpenedMaintenance, WhoseRowIsEditedKeepsTheEditAlsoWhenTheReloadOnReturnFails)
{
    transport.script(urlOf("1"), 200, changed);
    edit("Changed");
    transport.script(maintenancesURL, 500, "");
    view->closeMaintenance();
    run();
    EXPECT_EQ(firstTitle(), "Changed");
    EXPECT_EQ(view->content(), Content::records);
}

TEST_F(OpenedMaintenance, ThatIsDeletedLosesItsRowAtOnceAndCloses)
{
    transport.forget(maintenancesURL);
    transport.script(urlOf("1"), 204, "");
    view->detail()->deleteRecord();
    run();
    EXPECT_EQ(ids(), Words{"2"});
    EXPECT_FALSE(view->presentedMaintenance.isOpen());
    EXPECT_EQ(view->detail(), nullptr);
    EXPECT_EQ(transport.pending.size(), 1u) << "the list came into sight and is fetched once";
}

TEST_F(OpenedMaintenance, ThatIsClosedDuringARequestDoesNotComeBackButItsRowIsPatched)
{
    view->detail()->startMaintenance();
    run();
    view->closeMaintenance();
    run();
    transport.answer(HttpResponse{200, changed});
    run();
    EXPECT_FALSE(view->presentedMaintenance.isOpen());
    EXPECT_EQ(firstTitle(), "Changed");
}

TEST_F(OpenedMaintenance, ThatEndsItsDeletionBehindAnotherLosesItsRowAndLeavesThatOneAlone)
{
    view->detail()->deleteRecord();
    run();
    view->closeMaintenance();
    run();
    open("2");
    transport.answer(HttpResponse{204, ""});
    run();
    EXPECT_EQ(ids(), Words{"2"});
    ASSERT_TRUE(view->presentedMaintenance.isOpen());
    EXPECT_EQ(view->detail()->title(), "Work 2");
    EXPECT_EQ(transport.requests.size(), 0u);
}

TEST_F(OpenedMaintenance, WhoseEditHasAnAnswerThatSaysNothingKeepsTheTextAndLoadsTheListAnew)
{
    for (const auto& body : {std::string(), std::string("{}"), record("2")}) {
        transport.requests.clear();
        transport.script(urlOf("1"), 200, body);
        serve({changed, record("2")});
        edit("Changed");
        EXPECT_TRUE(*view->detail()->isEditing) << body;
        EXPECT_EQ(*view->detail()->editedTitle, "Changed");
        EXPECT_EQ(view->detail()->currentMaintenance->id, "1");
        EXPECT_NE(view->detail()->action->alert.words(), "");
        EXPECT_EQ(firstTitle(), "Changed");
        EXPECT_EQ(transport.requests.size(), 2u) << "the order, and the list once";
        view->detail()->close();
    }
}

TEST_F(OpenedMaintenance, WhoseScreenIsGoneEndsItsRequestsForNobody)
{
    view->detail()->deleteRecord();
    run();
    const std::weak_ptr<StatusPageMaintenancesView> held = view;
    view.reset();
    EXPECT_TRUE(held.expired());
    transport.answer(HttpResponse{204, ""});
    EXPECT_NO_FATAL_FAILURE(run());
}

TEST_F(OpenedMaintenance, ThatIsEditedIsWhatLeavingTheScreenWouldLose)
{
    EXPECT_FALSE(view->hasUnsavedText());
    view->detail()->beginEditing();
    EXPECT_FALSE(view->hasUnsavedText());
    view->detail()->editedMessage = "text";
    EXPECT_TRUE(view->hasUnsavedText());
}

}  // namespace

}  // namespace larkspan::maintenances
