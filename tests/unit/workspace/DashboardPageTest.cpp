#include <gtest/gtest.h>

#include <string>

#include "PageOfTheDashboard.h"
#include "components/ComponentDetailView.h"
#include "components/StatusPageComponentsView.h"
#include "incidents/IncidentDetailView.h"
#include "monitors/MonitorDetailView.h"
#include "monitors/MonitorRow.h"
#include "monitors/StatusPageMonitorsView.h"
#include "workspace/StatusPageRow.h"

namespace larkspan::workspace {

namespace {

using namespace std::chrono_literals;
using Tab = StatusPageDetailView::Tab;

TEST_F(PageOfTheDashboard, OpensFromItsRowAndClosesOnTheWayBack)
{
    EXPECT_EQ(opened(), nullptr);
    dashboard->openPage("b");
    ASSERT_NE(opened(), nullptr);
    EXPECT_EQ(opened()->page->name, "b");
    EXPECT_EQ(*dashboard->selectedPageId, "b");
    dashboard->closePage();
    EXPECT_EQ(opened(), nullptr);
    EXPECT_EQ(*dashboard->selectedPageId, std::nullopt);
}

TEST_F(PageOfTheDashboard, OpensFromTheMenu)
{
    state->openStatusPage("b");
    ASSERT_NE(opened(), nullptr);
    EXPECT_EQ(opened()->page->id, "b");
}

TEST_F(PageOfTheDashboard, AskedForFromTheMenuWhileTextIsTypedInAnotherComesOnceTheUserAgreesToLoseThat)
{
    const auto form = writeIncident();
    state->openStatusPage("b");
    EXPECT_TRUE(*form->showDiscardConfirmation);
    EXPECT_EQ(opened()->page->id, "a");
    EXPECT_EQ(*dashboard->selectedPageId, "a");
    form->discardChanges();
    ASSERT_NE(opened(), nullptr);
    EXPECT_EQ(opened()->page->id, "b");
    EXPECT_EQ(*dashboard->selectedPageId, "b");
}

TEST_F(PageOfTheDashboard, AskedForFromTheMenuIsForgottenWhereTheUserGoesOnTyping)
{
    const auto form = writeIncident();
    state->openStatusPage("b");
    form->keepEditing();
    EXPECT_FALSE(*form->showDiscardConfirmation);
    EXPECT_EQ(*form->title, "Mail is down");
    form->requestClose();
    form->discardChanges();
    EXPECT_EQ(opened()->page->id, "a") << "that question was about the form alone";
    EXPECT_FALSE((*dashboard->openedPage)->incidents()->showCreateIncident.isOpen());
}

TEST_F(PageOfTheDashboard, AskedForFromTheMenuComesByItselfWhenTheServiceHasTakenTheTextMeanwhile)
{
    transport.forget(incidentsURL);
    const auto form = writeIncident();
    form->save();
    run();
    state->openStatusPage("b");
    EXPECT_TRUE(*form->showDiscardConfirmation);
    EXPECT_EQ(opened()->page->id, "a");
    while (!transport.pending.empty()) {
        transport.answer(platform::HttpResponse{201, incident("9", "Mail is down")});
        run();
    }
    EXPECT_EQ(opened()->page->id, "b");
}

TEST_F(PageOfTheDashboard, AskedForFromTheMenuWhileAnEditorIsOpenInAnotherAsksThere)
{
    transport.script(
        "https://service.example/user/api/components?status_page_id=a", 200, R"([{"id": "1", "name": "API"}])");
    dashboard->openPage("a");
    (*dashboard->openedPage)->select(Tab::components);
    run();
    const auto components = (*dashboard->openedPage)->components();
    components->openComponent("1");
    components->detail()->beginEditing();
    components->detail()->editedName = "Gateway";
    state->openStatusPage("b");
    EXPECT_TRUE(*components->detail()->showDiscardConfirmation);
    components->detail()->discardChanges();
    EXPECT_EQ(opened()->page->id, "b");
}

TEST_F(PageOfTheDashboard, AskedForFromTheMenuWhileAnOrderWithoutTextRunsComesAtOnce)
{
    transport.script(incidentsOfA, 200, "[" + incident("1", "Down") + "]");
    dashboard->openPage("a");
    (*dashboard->openedPage)->select(Tab::incidents);
    run();
    const auto list = (*dashboard->openedPage)->incidents();
    list->openIncident("1");
    list->detail()->press("escalate");
    run();
    state->openStatusPage("b");
    EXPECT_EQ(opened()->page->id, "b");
}

TEST_F(PageOfTheDashboard, AskedForFromTheMenuWhileAnotherIsOpenIsAViewOfItsOwnWithTheOverviewSelected)
{
    dashboard->openPage("a");
    (*dashboard->openedPage)->select(Tab::incidents);
    state->openStatusPage("b");
    ASSERT_NE(opened(), nullptr);
    EXPECT_EQ(opened()->page->id, "b");
    EXPECT_EQ(opened()->selectedTab(), Tab::overview);
}

TEST_F(PageOfTheDashboard, AskedForAgainWhileItIsOpenStaysAsItIs)
{
    dashboard->openPage("a");
    (*dashboard->openedPage)->select(Tab::incidents);
    const auto* const before = opened();
    state->openStatusPage("a");
    EXPECT_EQ(opened(), before);
    EXPECT_EQ(opened()->selectedTab(), Tab::incidents);
}

TEST_F(PageOfTheDashboard, ThatTheAccountDoesNotHaveOpensNothingAndClosesTheOneThatWasOpen)
{
    dashboard->openPage("a");
    state->openStatusPage("gone");
    EXPECT_EQ(opened(), nullptr);
    EXPECT_EQ(*dashboard->selectedPageId, "gone");
}

TEST_F(PageOfTheDashboard, DoesNotOpenByItselfWhenTheAccountGetsItLater)
{
    state->openStatusPage("c");
    servePages({"a", "b", "c"}, {});
    refresh();
    EXPECT_EQ(opened(), nullptr);
}

TEST_F(PageOfTheDashboard, IsHandedTheNewRecordWithEachCycleAndKeepsItsTab)
{
    dashboard->openPage("a");
    (*dashboard->openedPage)->select(Tab::incidents);
    const auto* const before = opened();
    servePages({"a", "b"}, {{"a", "major-outage"}});
    refresh();
    EXPECT_EQ(opened(), before);
    EXPECT_EQ(opened()->page->status, model::StatusPageStatus::down);
    EXPECT_EQ(opened()->selectedTab(), Tab::incidents);
}

TEST_F(PageOfTheDashboard, ThatIsGoneFromTheAccountCloses)
{
    dashboard->openPage("a");
    servePages({"b"}, {});
    refresh();
    EXPECT_EQ(opened(), nullptr);
    EXPECT_EQ(*dashboard->selectedPageId, std::nullopt);
    servePages({"a", "b"}, {});
    refresh();
    EXPECT_EQ(opened(), nullptr) << "nor does it come back by itself";
}

TEST_F(PageOfTheDashboard, InWhichTextIsTypedStaysWhereACycleLacksItAndCanStillBeSaved)
{
    transport.script(incidentsOfA, 200, "[]");
    const auto form = writeIncident();
    transport.script(pagesURL, 200, R"({"data": null})");
    refresh();
    ASSERT_NE(opened(), nullptr);
    EXPECT_EQ(opened()->page->name, "a");
    EXPECT_EQ(*form->title, "Mail is down");
    transport.requests.clear();
    transport.script(incidentsURL, 201, incident("9", "Mail is down"));
    form->save();
    run();
    EXPECT_EQ(sent(), std::vector<std::string>{"POST /user/api/v1/incidents"});
    EXPECT_FALSE((*dashboard->openedPage)->incidents()->showCreateIncident.isOpen());
    EXPECT_NE(opened(), nullptr);
}

TEST_F(PageOfTheDashboard, ThatStayedForItsTextGoesWithTheNextCycleAndNoEarlier)
{
    const auto form = writeIncident();
    cycleWith({"b"});
    form->close();
    state->isReachable = false;
    run();
    EXPECT_NE(opened(), nullptr) << "no list has landed since";
    transport.script(pagesURL, 500, "");
    refresh();
    EXPECT_NE(opened(), nullptr) << "nor now";
    cycleWith({"b"});
    EXPECT_EQ(opened(), nullptr);
}

TEST_F(PageOfTheDashboard, ThatStayedForItsTextAndIsListedAgainStays)
{
    const auto form = writeIncident();
    cycleWith({"b"});
    form->close();
    cycleWith({"a", "b"});
    EXPECT_NE(opened(), nullptr);
}

TEST_F(PageOfTheDashboard, InWhichAnOrderRunsStaysUntilThatHasEnded)
{
    transport.script(incidentsOfA, 200, "[" + incident("1", "Down") + "]");
    dashboard->openPage("a");
    (*dashboard->openedPage)->select(Tab::incidents);
    run();
    const auto list = (*dashboard->openedPage)->incidents();
    list->openIncident("1");
    list->detail()->press("escalate");
    run();
    cycleWith({"b"});
    ASSERT_NE(opened(), nullptr);
    transport.answer(platform::HttpResponse{409, ""});
    run();
    EXPECT_EQ(list->detail()->action->alert.words(), "Server returned HTTP status code 409.");
    cycleWith({"b"});
    EXPECT_EQ(opened(), nullptr);
}

TEST_F(PageOfTheDashboard, InWhichAMonitorIsPausedStaysUntilThatHasEnded)
{
    transport.script("https://service.example/user/api/v1/monitors", 200,
        R"([{"id": "1", "name": "API", "type": "http", "status_page_id": "a"}])");
    dashboard->openPage("a");
    (*dashboard->openedPage)->select(Tab::monitors);
    run();
    const auto list = (*dashboard->openedPage)->monitors();
    list->press("1", monitors::pauseResumeButton);
    run();
    cycleWith({"b"});
    EXPECT_NE(opened(), nullptr);
    list->openMonitor("1");
    transport.answer(platform::HttpResponse{200, ""});
    run();
    list->detail()->press(monitors::checkNowButton);
    run();
    cycleWith({"b"});
    EXPECT_NE(opened(), nullptr) << "the opened monitor's own order";
    transport.answer(platform::HttpResponse{200, ""});
    run();
    cycleWith({"b"});
    EXPECT_EQ(opened(), nullptr);
}

TEST_F(PageOfTheDashboard, StaysOpenWhenARefreshFails)
{
    dashboard->openPage("a");
    transport.script(pagesURL, 500, "");
    refresh();
    EXPECT_NE(opened(), nullptr);
}

TEST_F(PageOfTheDashboard, ClosesWithTheDeletionOfTheKey)
{
    dashboard->openPage("a");
    state->clearAccountData();
    run();
    EXPECT_EQ(opened(), nullptr);
}

TEST_F(PageOfTheDashboard, OfADashboardThatWentInTheMiddleOfAChangeHarmsNothing)
{
    dashboard->openPage("a");
    state->isLoading = true;
    dashboard.reset();
    run();
}

TEST_F(PageOfTheDashboard, OfADashboardThatWentWhileItAskedHarmsNothing)
{
    const auto form = writeIncident();
    state->openStatusPage("b");
    dashboard.reset();
    EXPECT_NO_FATAL_FAILURE(form->discardChanges());
}

TEST_F(PageOfTheDashboard, IsToldEveryTenSecondsThatTimeGoesOnAndItsLastUpdateAges)
{
    transport.script(pagesURL, 200, R"([{"id": "a", "name": "a", "updated_at": "2026-11-20T09:00:00Z"}])");
    refresh();
    clock.time = std::chrono::sys_days{2026y / 11 / 20} + 9h + 5min;
    dashboard->openPage("a");
    const auto age = [this] { return opened()->overview().information.at(0).text; };
    EXPECT_EQ(age(), "5 minutes ago");
    int notices = 0;
    const auto subscription = (*dashboard->openedPage)->objectWillChange([&notices] { ++notices; });
    clock.time += 1h;
    timers.advance(10s);
    EXPECT_EQ(notices, 1);
    EXPECT_EQ(age(), "1 hour ago");
}

TEST_F(PageOfTheDashboard, OfTwoPagesWithOneIdIsThatOfItsRow)
{
    transport.script(pagesURL, 200, R"([{"id": "a", "name": "first"}, {"id": "a", "name": "second"}])");
    refresh();
    for (const std::size_t row : {0u, 1u}) {
        dashboard->openPage(dashboard->rows().at(row).id);
        ASSERT_NE(opened(), nullptr);
        EXPECT_EQ(opened()->page->name, row == 0 ? "first" : "second");
        EXPECT_EQ(opened()->page->id, "a");
        EXPECT_EQ(dashboard->selectedRow(), row);
    }
    refresh();
    EXPECT_EQ(opened()->page->name, "second");
}

}  // namespace

}  // namespace larkspan::workspace
