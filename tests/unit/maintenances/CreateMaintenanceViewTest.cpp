#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/Refusal.h"
#include "maintenances/FormOfAMaintenance.h"

namespace larkspan::maintenances {

namespace {

using namespace std::chrono_literals;
using fakes::Refusal;
using Words = std::vector<std::string>;

const std::string anHour = R"("start_at":"2026-11-20T09:00:00Z","end_at":"2026-11-20T10:00:00Z")";

TEST_F(FormOfAMaintenance, OpensEmptyForTheEntirePageAndTheNextHour)
{
    opened();
    EXPECT_EQ(*form->title, "");
    EXPECT_EQ(*form->message, "");
    EXPECT_EQ(*form->scheduledFor->moment, clock.time);
    EXPECT_EQ(*form->scheduledUntil->moment, clock.time + 3600s);
    EXPECT_FALSE(form->isSaveEnabled());
    EXPECT_EQ(form->selection->hint(), "Leave this as Entire status page for page-wide maintenance.");
    form->selection->chooseGroup("back");
    EXPECT_EQ(form->selection->hint(), "Choose the affected component and, optionally, one monitor.");
}

TEST_F(FormOfAMaintenance, LeftAsItIsWithATitleTypedHasDatesAnHourApartAndCanBeSaved)
{
    titled();
    EXPECT_TRUE(form->isSaveEnabled());
    EXPECT_EQ(saved(), R"({"title":"Upgrade","status_page_id":"p",)" + anHour + "}");
}

TEST_F(FormOfAMaintenance, WithATitleOfBlanksCannotBeSaved)
{
    titled(" \t");
    EXPECT_FALSE(form->isSaveEnabled());
    EXPECT_EQ(saved(), "nothing");
    form->title = "\n";
    EXPECT_TRUE(form->isSaveEnabled()) << "a line end is no blank";
}

TEST_F(FormOfAMaintenance, WithAnEndBeforeItsStartCannotBeSaved)
{
    titled()->scheduledUntil->typeHour("8");
    EXPECT_FALSE(form->isSaveEnabled());
    EXPECT_EQ(saved(), "nothing");
}

TEST_F(FormOfAMaintenance, WithEqualDatesCannotBeSaved)
{
    titled()->scheduledUntil->typeHour("9");
    EXPECT_EQ(*form->scheduledUntil->moment, *form->scheduledFor->moment);
    EXPECT_FALSE(form->isSaveEnabled());
    EXPECT_EQ(saved(), "nothing");
    form->scheduledUntil->moveTime(1min);
    EXPECT_TRUE(form->isSaveEnabled());
}

TEST_F(FormOfAMaintenance, WithDatesThatShowAsEqualCannotBeSaved)
{
    clock.time += 37s;
    titled()->scheduledFor->typeHour("10");
    EXPECT_EQ(form->scheduledFor->time(), form->scheduledUntil->time());
    EXPECT_FALSE(form->isSaveEnabled());
    EXPECT_EQ(saved(), "nothing");
}

TEST_F(FormOfAMaintenance, WithAStartMovedBehindItsEndCannotBeSaved)
{
    titled()->scheduledFor->moveDays(1);
    EXPECT_FALSE(form->isSaveEnabled());
    form->scheduledUntil->moveDays(1);
    EXPECT_TRUE(form->isSaveEnabled());
}

TEST_F(FormOfAMaintenance, SaysHowLongItIsAndWarnsIfItCannotBeSavedForThat)
{
    clock.time += 37s;
    titled();
    EXPECT_EQ(form->length(), presentation::Marker{.text = "1 hour"});
    form->scheduledUntil->typeMinute("30");
    EXPECT_EQ(form->length(), presentation::Marker{.text = "1 hour 30 minutes"}) << "whatever the seconds of the start";
    const auto warning = [](const char* text) {
        return presentation::Marker{.symbol = "exclamationmark.triangle.fill",
            .symbolTone = presentation::Tone::orange,
            .text = text,
            .tone = presentation::Tone::orange};
    };
    form->scheduledUntil->moveDays(-1);
    EXPECT_EQ(form->length(), warning("The end is before the start."));
    EXPECT_FALSE(form->isSaveEnabled());
    form->scheduledFor->typeHour("9");
    form->scheduledUntil->moveDays(1);
    form->scheduledUntil->typeHour("9");
    form->scheduledUntil->typeMinute("0");
    EXPECT_EQ(form->length(), warning("The end is at the start."));
    EXPECT_FALSE(form->isSaveEnabled());
}

TEST_F(FormOfAMaintenance, WithAGroupButNoComponentCannotBeSaved)
{
    titled()->selection->chooseGroup("back");
    EXPECT_FALSE(form->isSelectionComplete());
    EXPECT_FALSE(form->isSaveEnabled());
}

TEST_F(FormOfAMaintenance, WithAComponentAndAllItsMonitorsLeavesTheMonitorsOut)
{
    titled();
    choose("back", "api");
    EXPECT_EQ(form->selection->monitorChoices().at(0), (presentation::Choice{"", "All monitors on this component"}));
    EXPECT_EQ(form->selection->monitorChoices().size(), 3u);
    EXPECT_TRUE(form->isSaveEnabled());
    EXPECT_EQ(saved(), R"({"title":"Upgrade","status_page_id":"p",)" + anHour + R"(,"affected_components":"api"})");
}

TEST_F(FormOfAMaintenance, WithAMonitorSendsThatOneAndNotTheGroup)
{
    titled()->message = "We upgrade\n";
    choose("back", "api");
    form->selection->chooseMonitor("m1");
    EXPECT_EQ(saved(),
        R"({"title":"Upgrade","message":"We upgrade\n","status_page_id":"p",)" + anHour
            + R"(,"affected_components":"api","affected_monitor_ids":"m1"})");
}

TEST_F(FormOfAMaintenance, WhoseMonitorsLoadCanBeSavedWithoutThem)
{
    transport.forget(apiMonitorsURL);
    titled()->selection->chooseGroup("back");
    form->selection->chooseComponent("api");
    run();
    EXPECT_TRUE(*form->selection->isLoadingMonitors);
    EXPECT_TRUE(form->isSaveEnabled());
    EXPECT_EQ(saved(), R"({"title":"Upgrade","status_page_id":"p",)" + anHour + R"(,"affected_components":"api"})");
}

TEST_F(FormOfAMaintenance, WhoseMonitorsCannotBeFetchedSaysSo)
{
    transport.script(apiMonitorsURL, 500, "");
    titled();
    choose("back", "api");
    EXPECT_EQ(form->action->alert.words(),
        "Could not load monitors for this component: Server returned HTTP status code 500.");
    EXPECT_TRUE(form->isSaveEnabled());
}

TEST_F(FormOfAMaintenance, WhoseComponentsCannotBeFetchedSaysSoAndStillWorksForTheEntirePage)
{
    transport.script(componentsURL, 500, "");
    titled();
    EXPECT_EQ(form->action->alert.words(), "Could not load components: Server returned HTTP status code 500.");
    EXPECT_EQ(form->selection->groupChoices().size(), 1u);
    form->action->alert.dismiss();
    EXPECT_TRUE(form->isSaveEnabled());
    EXPECT_NE(saved(), "nothing");
}

TEST_F(FormOfAMaintenance, WhoseGroupsCannotBeFetchedSaysNothing)
{
    transport.script(groupsURL, 500, "");
    titled();
    EXPECT_EQ(form->action->alert.words(), "");
    EXPECT_EQ(form->selection->groupChoices().size(), 1u);
    EXPECT_TRUE(form->isSaveEnabled());
}

class RefusedMaintenance : public FormOfAMaintenance, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusedMaintenance, IsAnAlertOverAFormThatKeepsAllThatWasTypedAndChosen)
{
    titled()->message = "We upgrade";
    choose("back", "api");
    form->selection->chooseMonitor("m2");
    form->scheduledUntil->moveDays(1);
    transport.script(maintenancesURL, GetParam().answer);
    form->save();
    run();
    EXPECT_EQ(form->action->alert.words(), GetParam().alert);
    EXPECT_EQ(transport.requests.size(), 1u) << "nothing is tried again";
    EXPECT_EQ(effects, Words{});
    EXPECT_EQ(saved(),
        R"({"title":"Upgrade","message":"We upgrade","status_page_id":"p","start_at":"2026-11-20T09:00:00Z",)"
        R"("end_at":"2026-11-21T10:00:00Z","affected_components":"api","affected_monitor_ids":"m2"})");
    EXPECT_EQ(form->action->alert.words(), "");
}

INSTANTIATE_TEST_SUITE_P(EachAnswer, RefusedMaintenance, testing::ValuesIn(fakes::refusals()));

TEST_F(FormOfAMaintenance, LeftByEscapeWithNothingDoneJustCloses)
{
    titled("  ")->requestClose();
    EXPECT_EQ(effects, Words{"dismiss"});
}

TEST_F(FormOfAMaintenance, LeftByEscapeWithATitleOrAnotherDateAsksFirst)
{
    titled()->requestClose();
    EXPECT_TRUE(*form->showDiscardConfirmation);
    for (const auto& picker : {&CreateMaintenanceView::scheduledFor, &CreateMaintenanceView::scheduledUntil}) {
        opened();
        (*form.*picker)->moveDays(1);
        EXPECT_TRUE(form->hasUnsavedText());
        form->requestClose();
        EXPECT_TRUE(*form->showDiscardConfirmation);
    }
    EXPECT_EQ(effects, Words{});
    form->discardChanges();
    EXPECT_EQ(effects, Words{"dismiss"});
}

TEST_F(FormOfAMaintenance, TellsItsObserversOfItsDatesToo)
{
    opened();
    int changes = 0;
    const auto subscriptions = form->observe([&changes] { ++changes; });
    form->title = "Upgrade";
    EXPECT_EQ(changes, 1);
    form->scheduledFor->browseMonths(1);
    EXPECT_EQ(changes, 2);
    form->scheduledUntil->browseMonths(1);
    EXPECT_EQ(changes, 3);
    form->action->alert.dismiss();
    form->selection->isLoadingMonitors = true;
    EXPECT_EQ(changes, 5);
}

}  // namespace

}  // namespace larkspan::maintenances
