#include "incidents/StatusPageIncidentsView.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "api/KestruneAPI.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/PageComponents.h"

namespace larkspan::incidents {

namespace {

using platform::HttpResponse;
using presentation::Content;
using presentation::Pill;
using presentation::Placeholder;
using presentation::Tone;
using Words = std::vector<std::string>;

const std::string listURL = "https://service.example/user/api/v1/incidents?status_page_id=p";
const std::string recordURL = "https://service.example/user/api/v1/incidents/";
const std::string feature = "https://service.example/user/api/incidents/";

std::string record(const std::string& id, const std::string& rest = "")
{
    return R"({"id": ")" + id + R"(", "title": "Incident )" + id + R"(", "created_at": "2026-11-20T07:00:00Z")" + rest
        + "}";
}

class IncidentsOfAPage : public testing::Test, public fakes::PageComponents {
protected:
    void serve(const std::vector<std::string>& records)
    {
        std::string list;
        for (const auto& each : records) list += (list.empty() ? "" : ",") + each;
        transport.script(listURL, 200, "[" + list + "]");
    }

    void appear()
    {
        view->appear();
        run();
    }

    void open(const std::string& id)
    {
        view->openIncident(id);
        transport.requests.clear();
    }

    Words ids() const
    {
        Words all;
        for (const auto& row : view->rows()) all.push_back(row.id);
        return all;
    }

    fakes::FakeLinkOpener links;
    std::shared_ptr<StatusPageIncidentsView> view = std::make_shared<StatusPageIncidentsView>(
        StatusPageIncidentsView::Ports{main, api, api, api, credentials, clock, locale, links}, "p");
};

TEST_F(IncidentsOfAPage, DuringTheFirstLoadAreProgress)
{
    view->appear();
    EXPECT_EQ(view->content(), Content::loading);
    EXPECT_EQ(view->placeholder(), (Placeholder{.text = "Loading Incidents...", .showsProgress = true}));
}

TEST_F(IncidentsOfAPage, ThatCouldNotBeLoadedSayWhyAndRetryShowsProgressAndThenTheList)
{
    transport.script(listURL, 500, "");
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

TEST_F(IncidentsOfAPage, WithoutOneSayThatAllIsWell)
{
    serve({});
    appear();
    EXPECT_EQ(view->content(), Content::empty);
    EXPECT_EQ(view->placeholder(),
        (Placeholder{.symbol = "checkmark.shield",
            .tone = Tone::green,
            .title = "No Incidents",
            .text = "All systems are running smoothly."}));
}

TEST_F(IncidentsOfAPage, AreRowsInTheServicesOrder)
{
    serve({record("b", R"(, "severity_name": "CRITICAL")"),
        record("a", R"(, "incident_state_id": "4", "severity_name": "odd")"), record("c")});
    appear();
    EXPECT_EQ(view->rows(),
        (std::vector<IncidentRow>{
            {"b", "Incident b", Tone::red, Pill{"Critical", Tone::red}, "2026-11-20", {"Active", Tone::red}},
            {"a", "Incident a", Tone::green, Pill{"Odd", Tone::gray}, "2026-11-20", {"Resolved", Tone::green}},
            {"c", "Incident c", Tone::red, {}, "2026-11-20", {"Active", Tone::red}}}));
}

TEST_F(IncidentsOfAPage, KeepTheirRowsWhileAReloadRunsAndWhenItFails)
{
    serve({record("1")});
    appear();
    transport.script(listURL, 500, "");
    view->refresh();
    EXPECT_EQ(view->content(), Content::records);
    run();
    EXPECT_EQ(view->content(), Content::records);
    EXPECT_EQ(ids(), Words{"1"});
}

TEST_F(IncidentsOfAPage, AreWorthAPromptOfTheStoreOnlyWhenTheUserAsks)
{
    appear();
    EXPECT_EQ(credentials.promptsAllowed, 0);
    view->refresh();
    EXPECT_EQ(credentials.promptsAllowed, 1);
}

TEST_F(IncidentsOfAPage, ThatAreLeftDuringALoadAreFreedAfterIt)
{
    appear();
    const std::weak_ptr<StatusPageIncidentsViewModel> held = view->viewModel;
    view.reset();
    EXPECT_FALSE(held.expired());
    transport.answer(HttpResponse{200, "[]"});
    run();
    EXPECT_TRUE(held.expired());
}

TEST_F(IncidentsOfAPage, TellTheirObserversOfLoadsAndOfWhatStandsInFront)
{
    serve({record("1")});
    int changes = 0;
    const auto subscriptions = view->observe([&changes] { ++changes; });
    appear();
    EXPECT_GT(changes, 0);
    const int before = changes;
    view->openIncident("1");
    EXPECT_EQ(changes, before + 1);
}

class OpenedIncident : public IncidentsOfAPage {
protected:
    OpenedIncident()
    {
        serve({record("1"), record("2")});
        appear();
        open("1");
    }
};

TEST_F(OpenedIncident, StandsInFrontOfTheList)
{
    ASSERT_TRUE(view->presentedIncident->has_value());
    EXPECT_EQ((*view->presentedIncident)->id, "1");
    EXPECT_EQ(view->detail()->title(), "Incident 1");
}

TEST_F(OpenedIncident, IsNoneIfItsRowHasGone)
{
    view->closeIncident();
    view->openIncident("9");
    EXPECT_FALSE(view->presentedIncident->has_value());
    EXPECT_EQ(view->detail(), nullptr);
}

TEST_F(OpenedIncident, ThatIsChangedShowsTheNewRecordAndLeavesItsRow)
{
    transport.script(feature + "1/acknowledge", 200, "{}");
    transport.script(recordURL + "1", 200, record("1", R"(, "acknowledged_at": "x")"));
    view->detail()->press("acknowledge");
    run();
    EXPECT_TRUE((*view->presentedIncident)->acknowledged);
    EXPECT_TRUE(view->detail()->incident->acknowledged);
    EXPECT_EQ(view->rows().at(0).status.text, "Active");
    EXPECT_EQ(transport.requests.size(), 2u) << "the list is not fetched for it";
}

TEST_F(OpenedIncident, ThatIsClosedBringsTheListUpToDate)
{
    serve({record("1", R"(, "acknowledged_at": "x")")});
    view->detail()->close();
    EXPECT_FALSE(view->presentedIncident->has_value());
    EXPECT_EQ(view->detail(), nullptr);
    run();
    EXPECT_EQ(view->rows().at(0).status.text, "Acknowledged");
    view->closeIncident();
    run();
    EXPECT_EQ(transport.requests.size(), 1u) << "closed twice loads once";
}

TEST_F(OpenedIncident, ThatIsDeletedClosesAndIsGoneAfterTheLoad)
{
    serve({record("2")});
    transport.script(recordURL + "1", 200, "");
    view->detail()->deleteRecord();
    run();
    EXPECT_FALSE(view->presentedIncident->has_value());
    EXPECT_EQ(ids(), Words{"2"});
}

TEST_F(OpenedIncident, ThatIsClosedInMidRequestDoesNotComeBackButItsRowIsBroughtUpToDate)
{
    transport.script(feature + "1/escalate", 200, "{}");
    view->detail()->press("escalate");
    run();
    view->closeIncident();
    run();
    serve({record("1", R"(, "severity_name": "major")")});
    transport.answer(HttpResponse{200, record("1")});
    run();
    EXPECT_FALSE(view->presentedIncident->has_value());
    EXPECT_EQ(view->detail(), nullptr);
    EXPECT_EQ(view->rows().at(0).severity, (Pill{"Major", Tone::orange}));
}

TEST_F(OpenedIncident, ThatIsClosedWhileItIsDeletedIsGoneWhenTheServiceHasDone)
{
    view->detail()->deleteRecord();
    run();
    view->closeIncident();
    run();
    EXPECT_EQ(ids(), (Words{"1", "2"}));
    serve({record("2")});
    transport.answer(HttpResponse{200, ""});
    run();
    EXPECT_EQ(ids(), Words{"2"});
}

TEST_F(OpenedIncident, ThatEndsItsRequestBehindAnotherLeavesThatOneAlone)
{
    view->detail()->deleteRecord();
    run();
    view->closeIncident();
    run();
    open("2");
    transport.answer(HttpResponse{200, ""});
    run();
    ASSERT_TRUE(view->presentedIncident->has_value());
    EXPECT_EQ((*view->presentedIncident)->id, "2");
    EXPECT_EQ(view->detail()->title(), "Incident 2");
}

TEST_F(OpenedIncident, WhoseScreenIsGoneEndsItsRequestForNobody)
{
    transport.script(feature + "1/escalate", 200, "{}");
    view->detail()->press("escalate");
    run();
    const std::weak_ptr<StatusPageIncidentsView> held = view;
    view.reset();
    EXPECT_TRUE(held.expired());
    transport.answer(HttpResponse{200, record("1")});
    EXPECT_NO_FATAL_FAILURE(run());
}

class FormOnAPage : public IncidentsOfAPage {
protected:
    FormOnAPage()
    {
        serve({record("1")});
        appear();
        view->openCreateIncident();
        run();
        transport.requests.clear();
    }

    void save()
    {
        view->form()->title = "New";
        view->form()->save();
        run();
    }
};

TEST_F(FormOnAPage, IsUpWithItsChoicesUntilItIsCancelled)
{
    EXPECT_TRUE(*view->showCreateIncident);
    EXPECT_EQ(view->form()->selection->groupChoices().size(), 2u);
    const auto form = view->form();
    view->openCreateIncident();
    EXPECT_EQ(view->form(), form) << "asked for twice it is one";
    form->close();
    EXPECT_FALSE(*view->showCreateIncident);
    EXPECT_EQ(view->form(), nullptr);
    run();
    EXPECT_TRUE(transport.requests.empty()) << "the list was in sight all the time";
}

TEST_F(FormOnAPage, PutsWhatItCreatesAtTheTopWithoutAFetchAndTheNextLoadTakesTheServicesOrder)
{
    transport.script(incidentsURL, 200, record("new"));
    save();
    EXPECT_EQ(ids(), (Words{"new", "1"}));
    EXPECT_FALSE(*view->showCreateIncident);
    EXPECT_EQ(transport.requests.size(), 1u);
    serve({record("1"), record("new")});
    appear();
    EXPECT_EQ(ids(), (Words{"1", "new"}));
}

TEST_F(FormOnAPage, PutsWhatALoadHasBroughtAlreadyAtTheTopOnce)
{
    save();
    serve({record("1"), record("new")});
    appear();
    transport.answer(HttpResponse{200, record("new")});
    run();
    EXPECT_EQ(ids(), (Words{"new", "1"}));
}

TEST_F(FormOnAPage, StaysUpWhenTheServiceRefuses)
{
    transport.script(incidentsURL, 422, "");
    save();
    EXPECT_TRUE(*view->showCreateIncident);
    EXPECT_EQ(*view->form()->title, "New");
    EXPECT_EQ(ids(), Words{"1"});
}

TEST_F(FormOnAPage, WhoseScreenIsGoneEndsItsRequestForNobody)
{
    save();
    const std::weak_ptr<CreateIncidentView> held = view->form();
    view.reset();
    EXPECT_FALSE(held.expired());
    transport.answer(HttpResponse{200, record("new")});
    run();
    EXPECT_TRUE(held.expired());
}

TEST_F(FormOnAPage, WithATypedTextIsWhatLeavingTheScreenWouldLose)
{
    EXPECT_FALSE(view->hasUnsavedText());
    view->form()->title = "New";
    EXPECT_TRUE(view->hasUnsavedText());
    view->form()->close();
    EXPECT_FALSE(view->hasUnsavedText());
    open("1");
    EXPECT_FALSE(view->hasUnsavedText());
    view->detail()->beginEditing();
    view->detail()->editMessage = "text";
    EXPECT_TRUE(view->hasUnsavedText());
}

}  // namespace

}  // namespace larkspan::incidents
