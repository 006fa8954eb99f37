#include "incidents/IncidentDetailView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "incidents/DetailOfAnIncident.h"

namespace larkspan::incidents {

namespace {

using namespace std::chrono_literals;
using platform::HttpResponse;
using presentation::ActionButton;
using presentation::TimelineRow;
using presentation::Tone;

TEST_F(DetailOfAnIncident, IsTitledAsTheIncidentAndWhileEditingAddUpdate)
{
    opened();
    EXPECT_EQ(view->title(), "Outage");
    EXPECT_EQ(view->closeLabel(), "Close");
    view->beginEditing();
    EXPECT_EQ(view->title(), "Add Update");
    EXPECT_EQ(view->closeLabel(), "Cancel");
}

TEST_F(DetailOfAnIncident, OfAFreshOneHasACreatedRowAndLastsUntilNow)
{
    clock.time += 30min;
    opened();
    EXPECT_EQ(view->timeline(), (std::vector<TimelineRow>{{"plus.circle", "Created", "2026-11-20", "07:00"}}));
    EXPECT_EQ(view->duration(), "2h 30m");
    clock.time += 1min;
    EXPECT_EQ(view->duration(), "2h 31m");
}

TEST_F(DetailOfAnIncident, OfAResolvedOneHasAllRowsInTheirOrderAndLastedUntilItsEnd)
{
    opened(resolved + R"(, "updated_at": "2026-11-20T08:15:00Z")");
    EXPECT_EQ(view->timeline(),
        (std::vector<TimelineRow>{{"plus.circle", "Created", "2026-11-20", "07:00"},
            {"arrow.triangle.2.circlepath", "Updated", "2026-11-20", "08:15"},
            {"checkmark.circle", "Resolved", "2026-11-20", "08:30"}}));
    EXPECT_EQ(view->duration(), "1h 30m");
}

TEST_F(DetailOfAnIncident, WithAnEmptyAssigneeOrNoneNamesNobody)
{
    EXPECT_EQ(opened()->assignedTo(), "");
    EXPECT_EQ(opened(R"(, "assigned_to_user_id": "")")->assignedTo(), "");
    EXPECT_EQ(opened(R"(, "assigned_to_user_id": "ana")")->assignedTo(), "ana");
}

TEST_F(DetailOfAnIncident, ShowsAMessageThatIsNotEmptyAlsoOneOfBlanksButNotWhileEditing)
{
    EXPECT_FALSE(opened()->showsDescription());
    EXPECT_FALSE(opened(R"(, "message": "")")->showsDescription());
    EXPECT_TRUE(opened(R"(, "message": " \n ")")->showsDescription());
    opened(R"(, "message": "We **look**")");
    EXPECT_EQ(view->description(), "We **look**");
    view->beginEditing();
    EXPECT_FALSE(view->showsDescription());
    view->close();
    EXPECT_TRUE(view->showsDescription());
}

TEST_F(DetailOfAnIncident, HasItsButtonsInOneRow)
{
    opened();
    EXPECT_EQ(view->buttons(),
        (std::vector<ActionButton>{{.id = "acknowledge", .label = "Acknowledge", .symbol = "eye", .isPaired = true},
            {.id = "resolve", .label = "Resolve", .symbol = "checkmark.seal", .tone = Tone::green, .isPaired = true},
            {.id = "escalate", .label = "Escalate", .symbol = "arrow.up.doc"},
            {.id = "addUpdate",
                .label = "Add Update",
                .symbol = "plus.bubble",
                .isProminent = true,
                .isApart = true}}));
}

struct EnabledRow {
    std::string rest;
    Words enabled;
};

class ButtonsOfAnIncident : public DetailOfAnIncident, public testing::WithParamInterface<EnabledRow> {};

TEST_P(ButtonsOfAnIncident, AreEnabledByItsStatusAndAcknowledgement)
{
    opened(GetParam().rest);
    EXPECT_EQ(enabledButtons(), GetParam().enabled);
}

INSTANTIATE_TEST_SUITE_P(EachState, ButtonsOfAnIncident,
    testing::Values(EnabledRow{"", {"Acknowledge", "Resolve", "Escalate", "Add Update"}},
        EnabledRow{acknowledged, {"Resolve", "Escalate", "Add Update"}},
        EnabledRow{R"(, "incident_state_id": "2")", {"Acknowledge", "Resolve", "Escalate", "Add Update"}},
        EnabledRow{resolved, {"Escalate", "Add Update"}},
        EnabledRow{resolved + acknowledged, {"Escalate", "Add Update"}}));

TEST_F(DetailOfAnIncident, OfACompletedOneCanBeNeitherAcknowledgedNorResolved)
{
    auto completed = decoded<model::Incident>(record());
    completed.status = model::IncidentStatus::completed;
    opened()->show(completed);
    EXPECT_EQ(enabledButtons(), (Words{"Escalate", "Add Update"}));
}

TEST_F(DetailOfAnIncident, DisablesEverythingButClosingWhileARequestRuns)
{
    opened()->press("escalate");
    EXPECT_EQ(enabledButtons(), Words{});
    EXPECT_FALSE(view->isIdle());
    view->confirmDelete();
    EXPECT_FALSE(*view->showDeleteConfirmation);
    view->beginEditing();
    EXPECT_FALSE(*view->isEditing);
    EXPECT_TRUE(view->isCloseEnabled());
    transport.script(actionURL + "escalate", 200, "{}");
    transport.script(recordURL, 200, record());
    run();
    EXPECT_EQ(enabledButtons().size(), 4u);
    EXPECT_TRUE(view->isIdle());
    editing("text")->saveUpdate();
    EXPECT_FALSE(view->isSaveEnabled()) << "nor can it be sent again";
}

TEST_F(DetailOfAnIncident, PressedOnADisabledOrUnknownButtonDoesNothing)
{
    opened(acknowledged)->press("acknowledge");
    view->press("nonsense");
    run();
    EXPECT_TRUE(transport.requests.empty());
    EXPECT_FALSE(*view->action->isInProgress);
}

TEST_F(DetailOfAnIncident, ThatIsGoneStillEndsItsRequestAndThenIsFreed)
{
    opened();
    performed(Action::resolve);
    const std::weak_ptr<IncidentDetailView> held = view;
    view.reset();
    EXPECT_FALSE(held.expired());
    transport.answer(HttpResponse{500, ""});
    run();
    EXPECT_TRUE(held.expired());
}

TEST_F(DetailOfAnIncident, TellsItsObserversOfItsRecordItsEditorAndItsRequests)
{
    opened();
    int changes = 0;
    const auto subscriptions = view->observe([&changes] { ++changes; });
    view->show(decoded<model::Incident>(record(resolved)));
    EXPECT_EQ(changes, 1);
    view->beginEditing();
    EXPECT_GT(changes, 1);
    const int before = changes;
    performed(Action::escalate);
    EXPECT_GT(changes, before);
}

}  // namespace

}  // namespace larkspan::incidents
