#include "maintenances/MaintenanceDetailView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "maintenances/DetailOfAMaintenance.h"

namespace larkspan::maintenances {

namespace {

using namespace std::chrono_literals;
using platform::HttpResponse;
using presentation::ActionButton;
using presentation::Pill;
using presentation::TimelineRow;
using presentation::Tone;
using Rows = std::vector<TimelineRow>;

TEST_F(DetailOfAMaintenance, IsTitledAsTheMaintenanceAndWhileEditingEditMaintenance)
{
    opened();
    EXPECT_EQ(view->title(), "Upgrade");
    EXPECT_EQ(view->closeLabel(), "Close");
    EXPECT_EQ(view->status(), (Pill{"Scheduled", Tone::blue}));
    view->beginEditing();
    EXPECT_EQ(view->title(), "Edit Maintenance");
    EXPECT_EQ(view->closeLabel(), "Cancel");
}

TEST_F(DetailOfAMaintenance, OfAScheduledOneWithAnEndShowsItAsScheduledEndAndAsCompletedToo)
{
    opened();
    EXPECT_EQ(view->timeline(),
        (Rows{{"calendar.badge.clock", "Scheduled Start", "2026-11-20", "10:00"},
            {"calendar.badge.minus", "Scheduled End", "2026-11-20", "12:00"},
            {"checkmark.circle", "Completed", "2026-11-20", "12:00"}}));
}

TEST_F(DetailOfAMaintenance, OfACompletedOneShowsNoScheduledEndAndNeitherActionButton)
{
    opened(isCompleted);
    EXPECT_EQ(view->timeline(),
        (Rows{{"calendar.badge.clock", "Scheduled Start", "2026-11-20", "07:00"},
            {"checkmark.circle", "Completed", "2026-11-20", "08:30"}}));
    EXPECT_EQ(enabledButtons(), Words{"Delete Maintenance"});
}

TEST_F(DetailOfAMaintenance, ShowsOnlyTheMomentsThatAreThereInTheirOrder)
{
    opened("");
    EXPECT_EQ(view->timeline(), Rows{});
    EXPECT_EQ(view->recordRows(), Rows{});
    opened(isInProgress + R"(, "started_at": "2026-11-20T08:05:00Z", "created_at": "2026-11-19T07:00:00Z",
        "updated_at": "2026-11-19T08:00:00Z")");
    EXPECT_EQ(view->timeline(),
        (Rows{{"calendar.badge.clock", "Scheduled Start", "2026-11-20", "08:00"},
            {"calendar.badge.minus", "Scheduled End", "2026-11-20", "12:00"},
            {"play.circle", "Started", "2026-11-20", "08:05"},
            {"checkmark.circle", "Completed", "2026-11-20", "12:00"}}));
    EXPECT_EQ(view->recordRows(),
        (Rows{{"plus.circle", "Created", "2026-11-19", "07:00"},
            {"arrow.triangle.2.circlepath", "Updated", "2026-11-19", "08:00"}}));
}

TEST_F(DetailOfAMaintenance, WithoutACreationHasItsChangeAmongTheOtherMoments)
{
    opened(R"(, "start_at": "2026-11-20T10:00:00Z", "updated_at": "2026-11-19T08:00:00Z")");
    EXPECT_EQ(view->timeline(),
        (Rows{{"calendar.badge.clock", "Scheduled Start", "2026-11-20", "10:00"},
            {"arrow.triangle.2.circlepath", "Updated", "2026-11-19", "08:00"}}));
    EXPECT_EQ(view->recordRows(), Rows{});
}

TEST_F(DetailOfAMaintenance, ShowsAMessageThatIsNotEmptyButNotWhileEditing)
{
    EXPECT_FALSE(opened()->showsDescription());
    EXPECT_FALSE(opened(R"(, "message": "")")->showsDescription());
    opened(R"(, "message": "We **upgrade**")");
    EXPECT_TRUE(view->showsDescription());
    EXPECT_EQ(view->description(), "We **upgrade**");
    view->beginEditing();
    EXPECT_FALSE(view->showsDescription());
    view->close();
    EXPECT_TRUE(view->showsDescription());
}

const ActionButton deletion{
    .id = "delete", .label = "Delete Maintenance", .symbol = "trash", .tone = Tone::red, .isApart = true};

TEST_F(DetailOfAMaintenance, OfAScheduledOneOffersToStartIt)
{
    opened();
    EXPECT_EQ(view->buttons(),
        (std::vector<ActionButton>{{.id = "start",
                                       .label = "Start Maintenance",
                                       .symbol = "play.fill",
                                       .tone = Tone::yellow,
                                       .isProminent = true},
            deletion}));
}

TEST_F(DetailOfAMaintenance, OfARunningOneOffersToCompleteIt)
{
    opened(isInProgress);
    EXPECT_EQ(view->buttons(),
        (std::vector<ActionButton>{{.id = "complete",
                                       .label = "Complete Maintenance",
                                       .symbol = "checkmark.seal.fill",
                                       .tone = Tone::green,
                                       .isProminent = true},
            deletion}));
}

TEST_F(DetailOfAMaintenance, OfAnUnknownStatusHasNeitherActionButtonButEditAndDeleteWork)
{
    opened(isCancelled);
    EXPECT_EQ(view->status(), (Pill{"Cancelled", Tone::gray}));
    EXPECT_EQ(view->buttons(), std::vector{deletion});
    EXPECT_TRUE(view->isIdle());
    view->press("delete");
    EXPECT_TRUE(*view->showDeleteConfirmation);
    view->beginEditing();
    EXPECT_TRUE(*view->isEditing);
    answer(isCancelled);
    view->saveEdits();
    run();
    EXPECT_FALSE(*view->isEditing);
    transport.script(recordURL, 204, "");
    view->deleteRecord();
    run();
    EXPECT_EQ(effects, (Words{"update cancelled while busy", "delete 7 while busy", "dismiss while busy"}));
}

TEST_F(DetailOfAMaintenance, ComparesTheStatusWithItsCase)
{
    opened(R"(, "status": "Scheduled")");
    EXPECT_EQ(view->buttons(), std::vector{deletion});
    opened(R"(, "status": "In_Progress")");
    EXPECT_EQ(view->buttons(), std::vector{deletion});
}

TEST_F(DetailOfAMaintenance, KeepsItsStatusWhenItsStartPassesMeanwhile)
{
    opened();
    clock.time += 90min;
    EXPECT_EQ(view->status().text, "Scheduled");
    EXPECT_EQ(view->buttons().front().id, "start");
}

TEST_F(DetailOfAMaintenance, WhileEditingHasNoButtons)
{
    EXPECT_EQ(editing()->buttons(), std::vector<ActionButton>{});
    view->press("start");
    run();
    EXPECT_EQ(sent(), Words{});
}

TEST_F(DetailOfAMaintenance, DisablesEverythingButClosingWhileARequestRuns)
{
    opened();
    press("start");
    EXPECT_EQ(enabledButtons(), Words{});
    EXPECT_EQ(view->buttons().size(), 2u) << "they stay in sight";
    EXPECT_FALSE(view->isIdle());
    view->confirmDelete();
    EXPECT_FALSE(*view->showDeleteConfirmation);
    view->beginEditing();
    EXPECT_FALSE(*view->isEditing);
    transport.answer(HttpResponse{200, record(isInProgress)});
    run();
    EXPECT_EQ(enabledButtons(), (Words{"Complete Maintenance", "Delete Maintenance"}));
    EXPECT_TRUE(view->isIdle());
}

TEST_F(DetailOfAMaintenance, ThatIsGoneStillEndsItsRequestAndThenIsFreed)
{
    opened();
    press("start");
    const std::weak_ptr<MaintenanceDetailView> held = view;
    view.reset();
    EXPECT_FALSE(held.expired());
    transport.answer(HttpResponse{500, ""});
    run();
    EXPECT_TRUE(held.expired());
}

TEST_F(DetailOfAMaintenance, TellsItsObserversOfItsRecordItsEditorAndItsRequests)
{
    opened();
    int changes = 0;
    const auto subscriptions = view->observe([&changes] { ++changes; });
    view->beginEditing();
    EXPECT_GT(changes, 0);
    const int before = changes;
    view->startMaintenance();
    EXPECT_GT(changes, before);
}

}  // namespace

}  // namespace larkspan::maintenances
