#include <gtest/gtest.h>

#include <string>

#include "fakes/Refusal.h"
#include "maintenances/DetailOfAMaintenance.h"

namespace larkspan::maintenances {

namespace {

using namespace std::chrono_literals;
using fakes::Refusal;
using platform::HttpResponse;

const std::string patch = "PATCH /user/api/v1/maintenances/7 ";
const std::string message = R"(, "message": "We **upgrade**")";

class EditorOfAMaintenance : public DetailOfAMaintenance {
protected:
    void save()
    {
        view->saveEdits();
        run();
    }
};

TEST_F(EditorOfAMaintenance, OpensWithTheRecord)
{
    editing(isScheduled + message);
    EXPECT_EQ(*view->editedTitle, "Upgrade");
    EXPECT_EQ(*view->editedMessage, "We **upgrade**");
    EXPECT_EQ(*view->editedScheduledFor->moment, clock.time + 1h);
    EXPECT_EQ(*view->editedScheduledUntil->moment, clock.time + 3h);
    EXPECT_TRUE(view->isSaveEnabled());
}

TEST_F(EditorOfAMaintenance, WithNoDatesShowsTheCurrentMomentAndAnHourLaterAndSavingSendsThose)
{
    opened("");
    clock.time += 5min;
    view->beginEditing();
    EXPECT_EQ(*view->editedMessage, "");
    EXPECT_EQ(*view->editedScheduledFor->moment, clock.time);
    EXPECT_EQ(*view->editedScheduledUntil->moment, clock.time + 1h);
    clock.time += 5min;
    save();
    EXPECT_EQ(sent(),
        Words{patch + R"({"title":"Upgrade","start_at":"2026-11-20T09:05:00Z","end_at":"2026-11-20T10:05:00Z"})"});
}

TEST_F(EditorOfAMaintenance, SendsWhatWasEditedAsTypedThenShowsTheAnswerAndCloses)
{
    answer(isInProgress + R"(, "message": "now")");
    editing(isScheduled + message);
    view->editedTitle = "  Big upgrade ";
    view->editedMessage = " soon\n";
    view->editedScheduledFor->typeHour("11");
    view->editedScheduledUntil->moveDays(1);
    save();
    EXPECT_EQ(sent(),
        Words{patch + R"({"title":"  Big upgrade ","message":" soon\n","start_at":"2026-11-20T11:00:00Z",)"
            + R"("end_at":"2026-11-21T12:00:00Z"})"});
    EXPECT_EQ(effects, Words{"update in_progress while busy"});
    EXPECT_FALSE(*view->isEditing);
    EXPECT_FALSE(*view->action->isInProgress);
    EXPECT_EQ(view->description(), "now");
}

TEST_F(EditorOfAMaintenance, SendsNoClearedMessageAndTheReturnedRecordShowsTheOldOneAgain)
{
    answer(isScheduled + message);
    editing(isScheduled + message)->editedMessage = "";
    save();
    EXPECT_EQ(sent(),
        Words{patch + R"({"title":"Upgrade","start_at":"2026-11-20T10:00:00Z","end_at":"2026-11-20T12:00:00Z"})"});
    EXPECT_EQ(view->description(), "We **upgrade**");
}

TEST_F(EditorOfAMaintenance, SendsAnEndBeforeOrAtTheStartAsItStands)
{
    answer(isScheduled);
    editing()->editedScheduledUntil->typeHour("8");
    EXPECT_TRUE(view->isSaveEnabled());
    save();
    view->beginEditing();
    view->editedScheduledUntil->typeHour("10");
    EXPECT_TRUE(view->isSaveEnabled());
    save();
    EXPECT_EQ(sent(),
        (Words{patch + R"({"title":"Upgrade","start_at":"2026-11-20T10:00:00Z","end_at":"2026-11-20T08:00:00Z"})",
            patch + R"({"title":"Upgrade","start_at":"2026-11-20T10:00:00Z","end_at":"2026-11-20T10:00:00Z"})"}));
}

TEST_F(EditorOfAMaintenance, SaysHowLongItIsAndOnlyRemarksAnEndBeforeTheStart)
{
    editing();
    EXPECT_EQ(view->editedLength(), presentation::Marker{.text = "2 hours"});
    view->editedScheduledUntil->typeHour("8");
    EXPECT_EQ(view->editedLength(), presentation::Marker{.text = "The end is before the start."});
    view->editedScheduledUntil->typeHour("10");
    EXPECT_EQ(view->editedLength(), presentation::Marker{.text = "The end is at the start."});
    EXPECT_TRUE(view->isSaveEnabled());
}

TEST_F(EditorOfAMaintenance, TellsItsObserversOfItsDatesToo)
{
    editing();
    int changes = 0;
    const auto subscriptions = view->observe([&changes] { ++changes; });
    view->editedScheduledFor->browseMonths(1);
    EXPECT_EQ(changes, 1);
    view->editedScheduledUntil->browseMonths(1);
    EXPECT_EQ(changes, 2);
}

TEST_F(EditorOfAMaintenance, WithATitleOfBlanksCannotBeSaved)
{
    editing()->editedTitle = " \t";
    EXPECT_FALSE(view->isSaveEnabled());
    save();
    EXPECT_EQ(sent(), Words{});
    view->editedTitle = "\n";
    EXPECT_TRUE(view->isSaveEnabled()) << "a line end is no blank";
}

TEST_F(EditorOfAMaintenance, SavedTwiceSendsOnce)
{
    editing();
    view->saveEdits();
    EXPECT_FALSE(view->isSaveEnabled());
    view->saveEdits();
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
}

class RefusedEdits : public EditorOfAMaintenance, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusedEdits, KeepTheEditorOpenWithItsValuesAndSayWhy)
{
    transport.script(recordURL, GetParam().answer);
    editing()->editedTitle = "Mine";
    view->editedScheduledFor->typeHour("11");
    save();
    EXPECT_EQ(view->action->alert.words(), GetParam().alert);
    EXPECT_TRUE(*view->isEditing);
    EXPECT_EQ(*view->editedTitle, "Mine");
    EXPECT_EQ(view->editedScheduledFor->time(), "11:00");
    EXPECT_EQ(view->currentMaintenance->title, "Upgrade");
    EXPECT_EQ(effects, Words{});
    answer(isScheduled);
    save();
    EXPECT_FALSE(*view->isEditing) << "it can be sent again";
    EXPECT_EQ(view->action->alert.words(), "");
}

INSTANTIATE_TEST_SUITE_P(EachAnswer, RefusedEdits, testing::ValuesIn(fakes::refusals()));

TEST_F(EditorOfAMaintenance, CancelledKeepsTheScreenAndOpensWithTheRecordAgain)
{
    editing()->editedTitle = "Mine";
    view->editedScheduledFor->typeHour("11");
    view->close();
    EXPECT_FALSE(*view->isEditing);
    EXPECT_EQ(*view->editedTitle, "Mine") << "nobody sees it";
    EXPECT_EQ(effects, Words{});
    view->beginEditing();
    EXPECT_EQ(*view->editedTitle, "Upgrade");
    EXPECT_EQ(view->editedScheduledFor->time(), "10:00");
}

TEST_F(EditorOfAMaintenance, LeftByEscapeWithNothingChangedClosesTheEditorFirstAndThenTheScreen)
{
    editing(isScheduled + message)->requestClose();
    EXPECT_FALSE(*view->isEditing);
    EXPECT_EQ(effects, Words{});
    view->requestClose();
    EXPECT_EQ(effects, Words{"dismiss"});
}

using Change = void (*)(MaintenanceDetailView& view);

class ChangedEditor : public EditorOfAMaintenance, public testing::WithParamInterface<Change> {};

TEST_P(ChangedEditor, LeftByEscapeAsksFirst)
{
    editing(isScheduled + message);
    EXPECT_FALSE(view->hasUnsavedText());
    GetParam()(*view);
    EXPECT_TRUE(view->hasUnsavedText());
    view->requestClose();
    EXPECT_TRUE(*view->showDiscardConfirmation);
    EXPECT_TRUE(*view->isEditing);
    view->keepEditing();
    EXPECT_FALSE(*view->showDiscardConfirmation);
    EXPECT_TRUE(*view->isEditing);
    view->requestClose();
    view->discardChanges();
    EXPECT_FALSE(*view->showDiscardConfirmation);
    EXPECT_FALSE(*view->isEditing);
    EXPECT_FALSE(view->hasUnsavedText());
    EXPECT_EQ(effects, Words{}) << "the maintenance stays in sight";
}

INSTANTIATE_TEST_SUITE_P(InEachField, ChangedEditor,
    testing::Values([](auto& view) { view.editedTitle = ""; }, [](auto& view) { view.editedMessage = "other"; },
        [](auto& view) { view.editedScheduledFor->moveDays(1); },
        [](auto& view) { view.editedScheduledUntil->typeMinute("1"); }));

TEST_F(EditorOfAMaintenance, NoLongerAsksAboutEditsThatTheServiceHasMeanwhile)
{
    editing()->editedTitle = "Mine";
    save();
    view->requestClose();
    EXPECT_TRUE(*view->showDiscardConfirmation);
    transport.answer(HttpResponse{200, record(isScheduled)});
    run();
    EXPECT_FALSE(*view->showDiscardConfirmation);
    EXPECT_FALSE(*view->isEditing);
}

}  // namespace

}  // namespace larkspan::maintenances
