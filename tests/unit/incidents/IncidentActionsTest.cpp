#include <gtest/gtest.h>

#include <tuple>

#include "fakes/Refusal.h"
#include "incidents/DetailOfAnIncident.h"

namespace larkspan::incidents {

namespace {

using fakes::Refusal;
using Action = IncidentDetailView::DetailAction;

TEST_F(DetailOfAnIncident, AcknowledgesThenFetchesTheRecordAndHandsItOver)
{
    transport.script(actionURL + "acknowledge", 200, "{}");
    transport.script(recordURL, 200, record(acknowledged));
    opened()->press("acknowledge");
    EXPECT_TRUE(*view->action->isInProgress);
    run();
    EXPECT_EQ(sent(), (Words{"POST /user/api/incidents/7/acknowledge", "GET /user/api/v1/incidents/7"}));
    EXPECT_EQ(effects, Words{"update while busy"});
    EXPECT_TRUE(view->incident->acknowledged);
    EXPECT_FALSE(*view->action->isInProgress);
    EXPECT_EQ(view->action->alert.words(), "");
}

TEST_F(DetailOfAnIncident, AcknowledgesByTwoWaysToTheClientAndTwoBack)
{
    transport.script(actionURL + "acknowledge", 200, "{}");
    transport.script(recordURL, 200, record(acknowledged));
    opened()->press("acknowledge");
    run();
    EXPECT_EQ(client.posts(), 4) << "two operations and their answers";
    EXPECT_EQ(main.posts(), 4) << "two results, and the start and the end of the action";
}

TEST_F(DetailOfAnIncident, EscalatesThenFetchesTheRecordAndHandsItOver)
{
    transport.script(actionURL + "escalate", 200, "");
    transport.script(recordURL, 200, record(R"(, "severity_name": "major")"));
    opened()->press("escalate");
    run();
    EXPECT_EQ(sent(), (Words{"POST /user/api/incidents/7/escalate", "GET /user/api/v1/incidents/7"}));
    EXPECT_EQ(effects, Words{"update while busy"});
    EXPECT_EQ(view->incident->severityName, "major");
}

TEST_F(DetailOfAnIncident, ResolvesAndHandsOverWhatTheServiceAnswers)
{
    transport.script(statesURL, 200, R"({"incident_states": [{"id": 9, "stage": "Resolved", "sort_order": 1}]})");
    transport.script(recordURL, 200, record(resolved));
    opened()->press("resolve");
    run();
    EXPECT_EQ(sent(), (Words{"GET /user/api/incident-states", "PATCH /user/api/v1/incidents/7"}));
    EXPECT_EQ(effects, Words{"update while busy"});
    EXPECT_EQ(enabledButtons(), (Words{"Escalate", "Add Update"}));
}

TEST_F(DetailOfAnIncident, OfAnAccountWithoutAResolvedStateSaysSo)
{
    transport.script(statesURL, 200, R"({"incident_states": []})");
    opened()->press("resolve");
    run();
    EXPECT_EQ(view->action->alert.words(), "This account has no \"Resolved\" incident state configured.");
    EXPECT_EQ(effects, Words{});
}

TEST_F(DetailOfAnIncident, AsksBeforeItDeletesAndCancelDoesNothing)
{
    opened()->confirmDelete();
    EXPECT_TRUE(*view->showDeleteConfirmation);
    EXPECT_EQ(view->deleteConfirmation.title, "Delete Incident");
    EXPECT_EQ(
        view->deleteConfirmation.text, "Are you sure you want to delete this incident? This action cannot be undone.");
    EXPECT_EQ(view->deleteConfirmation.confirm, "Delete");
    EXPECT_EQ(view->deleteConfirmation.cancel, "Cancel");
    view->cancelDelete();
    run();
    EXPECT_FALSE(*view->showDeleteConfirmation);
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(DetailOfAnIncident, DeletedClosesItselfAndUpdatesNobody)
{
    transport.script(recordURL, 200, "");
    opened()->confirmDelete();
    view->deleteRecord();
    EXPECT_FALSE(*view->showDeleteConfirmation);
    run();
    EXPECT_EQ(sent(), Words{"DELETE /user/api/v1/incidents/7"});
    EXPECT_EQ(effects, Words{"dismiss while busy"});
    EXPECT_FALSE(*view->action->isInProgress);
}

TEST_F(DetailOfAnIncident, PressedTwiceSendsOnce)
{
    opened();
    view->performAction(Action::delete_);
    view->performAction(Action::delete_);
    view->press("acknowledge");
    run();
    EXPECT_EQ(sent(), Words{"DELETE /user/api/v1/incidents/7"});
}

class RefusedAction : public DetailOfAnIncident,
                      public testing::WithParamInterface<std::tuple<Action, fakes::Refusal>> {};

TEST_P(RefusedAction, IsAnAlertThatChangesNothingAndLeavesTheScreenOpen)
{
    const auto& [action, refusal] = GetParam();
    for (const auto& url : {recordURL, actionURL + "acknowledge", actionURL + "escalate", statesURL}) {
        transport.script(url, refusal.answer);
    }
    opened();
    performed(action);
    EXPECT_EQ(view->action->alert.words(), refusal.alert);
    EXPECT_EQ(transport.requests.size(), 1u) << "nothing is tried again";
    EXPECT_EQ(effects, Words{});
    EXPECT_FALSE(*view->action->isInProgress);
    EXPECT_EQ(enabledButtons().size(), 4u);
    view->action->alert.dismiss();
    EXPECT_EQ(view->action->alert.words(), "");
}

INSTANTIATE_TEST_SUITE_P(EachActionAndAnswer, RefusedAction,
    testing::Combine(testing::Values(Action::acknowledge, Action::resolve, Action::escalate, Action::delete_),
        testing::ValuesIn(fakes::refusals())));

TEST_F(DetailOfAnIncident, WhoseRecordCannotBeFetchedAfterAnActionReportsThatAlthoughTheActionTookPlace)
{
    for (const auto action : {Action::acknowledge, Action::escalate}) {
        transport.requests.clear();
        transport.script(actionURL + "acknowledge", 200, "{}");
        transport.script(actionURL + "escalate", 200, "{}");
        transport.script(recordURL, 500, "");
        opened();
        performed(action);
        EXPECT_EQ(transport.requests.size(), 2u);
        EXPECT_EQ(view->action->alert.words(), "Server returned HTTP status code 500.");
        EXPECT_EQ(effects, Words{});
    }
}

TEST_F(DetailOfAnIncident, BeginsAnActionWithoutTheAlertOfTheOneBefore)
{
    transport.script(actionURL + "escalate", 500, "");
    opened();
    performed(Action::escalate);
    transport.forget(actionURL + "escalate");
    performed(Action::escalate);
    EXPECT_EQ(view->action->alert.words(), "");
    EXPECT_TRUE(*view->action->isInProgress);
}

}  // namespace

}  // namespace larkspan::incidents
