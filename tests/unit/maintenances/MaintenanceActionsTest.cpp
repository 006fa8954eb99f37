#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "fakes/Refusal.h"
#include "maintenances/DetailOfAMaintenance.h"

namespace larkspan::maintenances {

namespace {

using fakes::Refusal;

TEST_F(DetailOfAMaintenance, StartsWithNothingButTheCurrentMoment)
{
    answer(isInProgress);
    opened();
    press("start");
    EXPECT_EQ(sent(), Words{R"(PATCH /user/api/v1/maintenances/7 {"start_at":"2026-11-20T09:00:00Z"})"});
    EXPECT_EQ(view->status().text, "In Progress");
    EXPECT_EQ(effects, Words{"update in_progress while busy"});
    EXPECT_FALSE(*view->action->isInProgress);
    EXPECT_EQ(view->action->alert.words(), "");
}

TEST_F(DetailOfAMaintenance, CompletesWithNothingButTheCurrentMoment)
{
    answer(isCompleted);
    opened(isInProgress);
    press("complete");
    EXPECT_EQ(sent(), Words{R"(PATCH /user/api/v1/maintenances/7 {"end_at":"2026-11-20T09:00:00Z"})"});
    EXPECT_EQ(view->status().text, "Completed");
    EXPECT_EQ(effects, Words{"update completed while busy"});
    EXPECT_EQ(enabledButtons(), Words{"Delete Maintenance"});
}

TEST_F(DetailOfAMaintenance, WhoseServiceAnswersAStartWithOneStillAheadKeepsStartOnOffer)
{
    answer(isScheduled);
    opened();
    press("start");
    EXPECT_EQ(view->status().text, "Scheduled");
    EXPECT_EQ(enabledButtons().front(), "Start Maintenance");
    EXPECT_EQ(effects, Words{"update scheduled while busy"});
    EXPECT_EQ(view->action->alert.words(), "");
}

TEST_F(DetailOfAMaintenance, AsksBeforeItDeletesAndCancelDoesNothing)
{
    opened()->press("delete");
    EXPECT_TRUE(*view->showDeleteConfirmation);
    EXPECT_EQ(view->deleteConfirmation.title, "Delete Maintenance");
    EXPECT_EQ(view->deleteConfirmation.text,
        "Are you sure you want to delete this maintenance? This action cannot be undone.");
    EXPECT_EQ(view->deleteConfirmation.confirm, "Delete");
    EXPECT_EQ(view->deleteConfirmation.cancel, "Cancel");
    view->cancelDelete();
    run();
    EXPECT_FALSE(*view->showDeleteConfirmation);
    EXPECT_EQ(sent(), Words{});
}

TEST_F(DetailOfAMaintenance, DeletedTellsItsOwnerAndThenCloses)
{
    transport.script(recordURL, 204, "");
    opened()->confirmDelete();
    view->deleteRecord();
    EXPECT_FALSE(*view->showDeleteConfirmation);
    run();
    EXPECT_EQ(sent(), Words{"DELETE /user/api/v1/maintenances/7"});
    EXPECT_EQ(effects, (Words{"delete 7 while busy", "dismiss while busy"}));
    EXPECT_FALSE(*view->action->isInProgress);
}

TEST_F(DetailOfAMaintenance, PressedTwiceSendsOnce)
{
    opened();
    press("start");
    press("start");
    view->startMaintenance();
    view->deleteRecord();
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
}

using Action = void (MaintenanceDetailView::*)();

class RefusedMaintenanceAction : public DetailOfAMaintenance,
                                 public testing::WithParamInterface<std::tuple<Action, Refusal>> {};

TEST_P(RefusedMaintenanceAction, IsAnAlertThatLeavesTheStatusAsItWas)
{
    const auto& [action, refusal] = GetParam();
    transport.script(recordURL, refusal.answer);
    opened();
    (*view.*action)();
    run();
    EXPECT_EQ(view->action->alert.words(), refusal.alert);
    EXPECT_EQ(transport.requests.size(), 1u) << "nothing is tried again";
    EXPECT_EQ(effects, Words{});
    EXPECT_EQ(view->status().text, "Scheduled");
    EXPECT_EQ(enabledButtons(), (Words{"Start Maintenance", "Delete Maintenance"}));
    view->action->alert.dismiss();
    EXPECT_EQ(view->action->alert.words(), "");
}

INSTANTIATE_TEST_SUITE_P(EachActionAndAnswer, RefusedMaintenanceAction,
    testing::Combine(testing::Values(&MaintenanceDetailView::startMaintenance,
                         &MaintenanceDetailView::completeMaintenance, &MaintenanceDetailView::deleteRecord),
        testing::ValuesIn(fakes::refusals())));

TEST_F(DetailOfAMaintenance, BeginsAnActionWithoutTheAlertOfTheOneBefore)
{
    transport.script(recordURL, 500, "");
    opened();
    press("start");
    transport.forget(recordURL);
    press("start");
    EXPECT_EQ(view->action->alert.words(), "");
    EXPECT_TRUE(*view->action->isInProgress);
}

TEST_F(DetailOfAMaintenance, PressedOnAnUnknownButtonDoesNothing)
{
    opened();
    press("complete");
    press("nonsense");
    EXPECT_EQ(sent(), Words{});
}

TEST_F(DetailOfAMaintenance, ClosedTellsItsOwner)
{
    opened()->requestClose();
    EXPECT_EQ(effects, Words{"dismiss"});
}

}  // namespace

}  // namespace larkspan::maintenances
