#include "maintenances/StatusPageMaintenancesView.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "api/KestruneAPI.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/PageComponents.h"

namespace larkspan::maintenances {

namespace {

using platform::HttpResponse;
using presentation::Content;
using presentation::Pill;
using presentation::Placeholder;
using presentation::Tone;
using Words = std::vector<std::string>;

std::string record(const std::string& id, const std::string& rest = "")
{
    return R"({"id": ")" + id + R"(", "title": "Work )" + id + R"(", "status_page_id": "p")" + rest + "}";
}

class MaintenancesOfAPage : public testing::Test, public fakes::PageComponents {
protected:
    void serve(const std::vector<std::string>& records)
    {
        std::string list;
        for (const auto& each : records) list += (list.empty() ? "" : ",") + each;
        transport.script(maintenancesURL, 200, "[" + list + "]");
    }

    void appear()
    {
        view->appear();
        run();
    }

    void open(const std::string& id)
    {
        view->openMaintenance(id);
        transport.requests.clear();
    }

    static std::string urlOf(const std::string& id) { return std::string(maintenancesURL) + "/" + id; }

    Words ids() const
    {
        Words all;
        for (const auto& row : view->rows()) all.push_back(row.id);
        return all;
    }

    fakes::FakeLinkOpener links;
    std::shared_ptr<StatusPageMaintenancesView> view = std::make_shared<StatusPageMaintenancesView>(
        StatusPageMaintenancesView::Ports{main, api, api, api, credentials, clock, locale, links}, "p");
};

TEST_F(MaintenancesOfAPage, DuringTheFirstLoadAreProgress)
{
    view->appear();
    EXPECT_EQ(view->content(), Content::loading);
    EXPECT_EQ(view->placeholder(), (Placeholder{.text = "Loading Maintenances...", .showsProgress = true}));
}

TEST_F(MaintenancesOfAPage, ThatCouldNotBeLoadedSayWhyAndRetryShowsProgressAndThenTheList)
{
    transport.script(maintenancesURL, 500, "");
    appear();
    EXPECT_EQ(view->content(), Content::failure);
    EXPECT_EQ(view->placeholder(),
        (Placeholder{.symbol = "exclamationmark.triangle",
            .tone = Tone::yellow,
            .text = "Server returned HTTP status code 500.",
            .offersRetry = true}));
    serve({record("1")});
    view->refresh();
    EXPECT_EQ(view->content(), Content::loading);
    run();
    EXPECT_EQ(view->content(), Content::records);
    EXPECT_EQ(view->placeholder(), Placeholder{});
}

TEST_F(MaintenancesOfAPage, WithoutOneSayWhatWouldBeHere)
{
    serve({});
    appear();
    EXPECT_EQ(view->content(), Content::empty);
    EXPECT_EQ(view->placeholder(),
        (Placeholder{.symbol = "calendar.badge.clock",
            .title = "No scheduled maintenances",
            .text = "Maintenance windows will appear here."}));
}

TEST_F(MaintenancesOfAPage, AreThoseThatNameThePageAndNoOther)
{
    serve({R"({"id": "other", "title": "a", "status_page_id": "q"})", record("2"), R"({"id": "none", "title": "a"})",
        R"({"id": "null", "title": "a", "status_page_id": null})", record("1")});
    appear();
    EXPECT_EQ(ids(), (Words{"2", "1"})) << "in the service's order";
    EXPECT_EQ(transport.requests.back().url, maintenancesURL) << "asked for the whole account";
}

TEST_F(MaintenancesOfAPage, AreRowsWithTheirStatusAndTheDayOfTheirStart)
{
    serve(
        {record("a", R"(, "start_at": "2026-11-21T09:00:00Z")"), record("b", R"(, "start_at": "2026-11-20T08:00:00Z")"),
            record("c", R"(, "end_at": "2026-11-20T08:00:00Z")"), record("d", R"(, "status": "cancelled")")});
    appear();
    EXPECT_EQ(view->rows(),
        (std::vector<MaintenanceRow>{{"a", "Work a", {"Scheduled", Tone::blue}, "2026-11-21"},
            {"b", "Work b", {"In Progress", Tone::yellow}, "2026-11-20"},
            {"c", "Work c", {"Completed", Tone::green}, ""}, {"d", "Work d", {"Cancelled", Tone::gray}, ""}}));
}

TEST_F(MaintenancesOfAPage, KeepTheirRowsAndShowNoErrorWhenAReloadFails)
{
    serve({record("1")});
    appear();
    transport.script(maintenancesURL, 500, "");
    view->refresh();
    EXPECT_EQ(view->content(), Content::records);
    run();
    EXPECT_EQ(view->content(), Content::records);
    EXPECT_EQ(ids(), Words{"1"});
    EXPECT_EQ(view->placeholder(), Placeholder{});
}

TEST_F(MaintenancesOfAPage, LoadedTwiceAtOnceAreThoseOfTheLastToFinish)
{
    view->appear();
    view->appear();
    run();
    ASSERT_EQ(transport.pending.size(), 2u);
    transport.answer(HttpResponse{200, "[" + record("1") + "]"});
    transport.answer(HttpResponse{200, "[" + record("2") + "]"});
    run();
    EXPECT_EQ(ids(), Words{"2"});
}

TEST_F(MaintenancesOfAPage, AreWorthAPromptOfTheStoreOnlyWhenTheUserAsks)
{
    appear();
    EXPECT_EQ(credentials.promptsAllowed, 0);
    view->refresh();
    EXPECT_EQ(credentials.promptsAllowed, 1);
}

TEST_F(MaintenancesOfAPage, ThatAreLeftDuringALoadAreFreedAfterIt)
{
    appear();
    const std::weak_ptr<StatusPageMaintenancesViewModel> held = view->viewModel;
    view.reset();
    EXPECT_FALSE(held.expired());
    transport.answer(HttpResponse{200, "[]"});
    run();
    EXPECT_TRUE(held.expired());
}

TEST_F(MaintenancesOfAPage, TellTheirObserversOfLoadsAndOfWhatStandsInFront)
{
    serve({record("1")});
    int changes = 0;
    const auto subscriptions = view->observe([&changes] { ++changes; });
    appear();
    EXPECT_GT(changes, 0);
    const int before = changes;
    view->openMaintenance("1");
    EXPECT_EQ(changes, before + 1);
}

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
    ASSERT_TRUE(view->presentedMaintenance->has_value());
    EXPECT_EQ((*view->presentedMaintenance)->id, "1");
    EXPECT_EQ(view->detail()->title(), "Work 1");
}

TEST_F(OpenedMaintenance, IsNoneIfItsRowHasGone)
{
    view->closeMaintenance();
    view->openMaintenance("9");
    EXPECT_FALSE(view->presentedMaintenance->has_value());
    EXPECT_EQ(view->detail(), nullptr);
}

TEST_F(OpenedMaintenance, ThatIsEditedShowsItInItsRowWithoutAnyFetch)
{
    transport.script(urlOf("1"), 200, changed);
    edit("Changed");
    EXPECT_EQ(firstTitle(), "Changed");
    EXPECT_EQ(transport.requests.size(), 1u);
    EXPECT_EQ(ids(), (Words{"1", "2"})) << "in its place";
    EXPECT_TRUE(view->presentedMaintenance->has_value());
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
    EXPECT_FALSE(view->presentedMaintenance->has_value());
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
    view->detail()->removeMaintenance();
    run();
    EXPECT_EQ(ids(), Words{"2"});
    EXPECT_FALSE(view->presentedMaintenance->has_value());
    EXPECT_EQ(view->detail(), nullptr);
    EXPECT_EQ(transport.pending.size(), 1u) << "the list came into sight and is fetched once";
}

TEST_F(OpenedMaintenance, ThatIsClosedInMidRequestDoesNotComeBackButItsRowIsPatched)
{
    view->detail()->startMaintenance();
    run();
    view->closeMaintenance();
    run();
    transport.answer(HttpResponse{200, changed});
    run();
    EXPECT_FALSE(view->presentedMaintenance->has_value());
    EXPECT_EQ(firstTitle(), "Changed");
}

TEST_F(OpenedMaintenance, ThatEndsItsDeletionBehindAnotherLosesItsRowAndLeavesThatOneAlone)
{
    view->detail()->removeMaintenance();
    run();
    view->closeMaintenance();
    run();
    open("2");
    transport.answer(HttpResponse{204, ""});
    run();
    EXPECT_EQ(ids(), Words{"2"});
    ASSERT_TRUE(view->presentedMaintenance->has_value());
    EXPECT_EQ(view->detail()->title(), "Work 2");
    EXPECT_EQ(transport.requests.size(), 0u);
}

TEST_F(OpenedMaintenance, WhoseScreenIsGoneEndsItsRequestsForNobody)
{
    view->detail()->removeMaintenance();
    run();
    const std::weak_ptr<StatusPageMaintenancesView> held = view;
    view.reset();
    EXPECT_TRUE(held.expired());
    transport.answer(HttpResponse{204, ""});
    EXPECT_NO_FATAL_FAILURE(run());
}

class MaintenanceFormOnAPage : public MaintenancesOfAPage {
protected:
    MaintenanceFormOnAPage()
    {
        serve({record("1")});
        appear();
        view->openCreateMaintenance();
        run();
        transport.requests.clear();
        transport.forget(maintenancesURL);
    }

    void save()
    {
        view->form()->title = "New";
        view->form()->save();
        run();
    }
};

TEST_F(MaintenanceFormOnAPage, IsUpWithItsChoicesUntilItIsCancelled)
{
    EXPECT_TRUE(*view->showCreateSheet);
    EXPECT_EQ(view->form()->pageId, "p");
    EXPECT_EQ(view->form()->selection->groupChoices().size(), 2u);
    const auto form = view->form();
    view->openCreateMaintenance();
    EXPECT_EQ(view->form(), form) << "asked for twice it is one";
    form->cancel();
    EXPECT_FALSE(*view->showCreateSheet);
    EXPECT_EQ(view->form(), nullptr);
    run();
    EXPECT_TRUE(transport.requests.empty()) << "the list was in sight all the time";
}

TEST_F(MaintenanceFormOnAPage, PutsWhatItCreatesAtTheTopWithoutAFetchAndTheNextLoadTakesTheServicesOrder)
{
    save();
    transport.answer(HttpResponse{201, record("new")});
    run();
    EXPECT_EQ(ids(), (Words{"new", "1"}));
    EXPECT_FALSE(*view->showCreateSheet);
    EXPECT_EQ(transport.requests.size(), 1u);
    serve({record("1"), record("new")});
    appear();
    EXPECT_EQ(ids(), (Words{"1", "new"}));
}

TEST_F(MaintenanceFormOnAPage, StaysUpWhenTheServiceRefuses)
{
    save();
    transport.answer(HttpResponse{422, ""});
    run();
    EXPECT_TRUE(*view->showCreateSheet);
    EXPECT_EQ(*view->form()->title, "New");
    EXPECT_EQ(ids(), Words{"1"});
}

TEST_F(MaintenanceFormOnAPage, WhoseScreenIsGoneEndsItsRequestForNobody)
{
    save();
    const std::weak_ptr<CreateMaintenanceView> held = view->form();
    view.reset();
    EXPECT_FALSE(held.expired());
    transport.answer(HttpResponse{201, record("new")});
    run();
    EXPECT_TRUE(held.expired());
}

TEST_F(MaintenanceFormOnAPage, WithATypedTextIsWhatLeavingTheScreenWouldLose)
{
    EXPECT_FALSE(view->hasUnsavedText());
    view->form()->title = "New";
    EXPECT_TRUE(view->hasUnsavedText());
    view->form()->cancel();
    EXPECT_FALSE(view->hasUnsavedText());
    open("1");
    view->detail()->beginEditing();
    EXPECT_FALSE(view->hasUnsavedText());
    view->detail()->editedMessage = "text";
    EXPECT_TRUE(view->hasUnsavedText());
}

}  // namespace

}  // namespace larkspan::maintenances
