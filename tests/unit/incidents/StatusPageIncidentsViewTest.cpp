#include "incidents/StatusPageIncidentsView.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "incidents/IncidentsOfAPage.h"

namespace larkspan::incidents {

namespace {

using platform::HttpResponse;
using presentation::Content;
using presentation::Pill;
using presentation::Placeholder;
using presentation::Tone;

const std::string recordURL = "https://service.example/user/api/v1/incidents/";
const std::string feature = "https://service.example/user/api/incidents/";

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
    ASSERT_TRUE(view->presentedIncident.isOpen());
    EXPECT_EQ(view->presentedIncident.screen()->id(), "1");
    EXPECT_EQ(view->detail()->title(), "Incident 1");
}

TEST_F(OpenedIncident, IsNoneIfItsRowHasGone)
{
    view->closeIncident();
    view->openIncident("9");
    EXPECT_FALSE(view->presentedIncident.isOpen());
    EXPECT_EQ(view->detail(), nullptr);
}

TEST_F(OpenedIncident, ThatIsChangedShowsTheNewRecordAndLeavesItsRow)
{
    transport.script(feature + "1/acknowledge", 200, "{}");
    transport.script(recordURL + "1", 200, record("1", R"(, "acknowledged_at": "x")"));
    view->detail()->press("acknowledge");
    run();
    EXPECT_TRUE(view->detail()->incident->acknowledged);
    EXPECT_TRUE(view->detail()->incident->acknowledged);
    EXPECT_EQ(view->rows().at(0).status.text, "Active");
    EXPECT_EQ(transport.requests.size(), 2u) << "the list is not fetched for it";
}

TEST_F(OpenedIncident, ThatIsClosedBringsTheListUpToDate)
{
    serve({record("1", R"(, "acknowledged_at": "x")")});
    view->detail()->close();
    EXPECT_FALSE(view->presentedIncident.isOpen());
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
    EXPECT_FALSE(view->presentedIncident.isOpen());
    EXPECT_EQ(ids(), Words{"2"});
}

TEST_F(OpenedIncident, ThatIsClosedDuringARequestDoesNotComeBackButItsRowIsBroughtUpToDate)
{
    transport.script(feature + "1/escalate", 200, "{}");
    view->detail()->press("escalate");
    run();
    view->closeIncident();
    run();
    serve({record("1", R"(, "severity_name": "major")")});
    transport.answer(HttpResponse{200, record("1")});
    run();
    EXPECT_FALSE(view->presentedIncident.isOpen());
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

TEST_F(OpenedIncident, WhoseRequestEndsAfterAnotherWasOpenedDoesNotChangeThatOne)
{
    view->detail()->deleteRecord();
    run();
    view->closeIncident();
    run();
    open("2");
    transport.answer(HttpResponse{200, ""});
    run();
    ASSERT_TRUE(view->presentedIncident.isOpen());
    EXPECT_EQ(view->presentedIncident.screen()->id(), "2");
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

TEST_F(OpenedIncident, WhoseUpdateHasAnAnswerThatSaysNothingKeepsTheTextAndShowsWhatTookPlace)
{
    for (const auto& body : {std::string(), std::string("{}"), record("2")}) {
        transport.requests.clear();
        serve({record("1"), record("2")});
        transport.script(recordURL + "1", 200, body);
        view->detail()->beginEditing();
        view->detail()->editMessage = "We look";
        view->detail()->saveUpdate();
        serve({record("1", R"(, "message": "We look")"), record("2")});
        run();
        EXPECT_TRUE(*view->detail()->isEditing) << body;
        EXPECT_EQ(*view->detail()->editMessage, "We look");
        EXPECT_NE(view->detail()->action->alert.words(), "");
        EXPECT_EQ(view->detail()->description(), "We look");
        EXPECT_EQ(view->presentedIncident.screen()->id(), "1");
        EXPECT_EQ(transport.requests.size(), 2u) << "the order, and the list once";
        view->detail()->close();
    }
}

TEST_F(OpenedIncident, WhoseAcknowledgementIsAnsweredWithAnotherRecordIsNotReplacedByThat)
{
    transport.script(feature + "1/acknowledge", 200, "{}");
    transport.script(recordURL + "1", 200, record("2"));
    view->detail()->press("acknowledge");
    run();
    EXPECT_EQ(view->detail()->incident->id, "1");
    EXPECT_EQ(view->detail()->action->alert.words(), "Received an invalid response from the server.");
}

TEST_F(OpenedIncident, WhoseOrderGotLostAndWhichIsGoneFromTheListStaysForItsText)
{
    view->detail()->beginEditing();
    view->detail()->editMessage = "We look";
    view->detail()->saveUpdate();
    run();
    serve({record("2")});
    transport.answer(platform::URLError::Code::timedOut);
    run();
    EXPECT_EQ(ids(), Words{"2"});
    ASSERT_NE(view->detail(), nullptr);
    EXPECT_EQ(*view->detail()->editMessage, "We look");
}

TEST_F(OpenedIncident, WithATypedUpdateIsWhatLeavingTheScreenWouldLose)
{
    EXPECT_FALSE(view->hasUnsavedText());
    view->detail()->beginEditing();
    EXPECT_FALSE(view->hasUnsavedText());
    view->detail()->editMessage = "text";
    EXPECT_TRUE(view->hasUnsavedText());
}

}  // namespace

}  // namespace larkspan::incidents
