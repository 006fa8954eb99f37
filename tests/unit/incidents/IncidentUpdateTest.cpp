#include <gtest/gtest.h>

#include <vector>

#include "fakes/Refusal.h"
#include "incidents/DetailOfAnIncident.h"

namespace larkspan::incidents {

namespace {

using fakes::Refusal;
using platform::HttpResponse;
using presentation::ActionButton;

TEST_F(DetailOfAnIncident, OpensItsEditorEmptyAlsoAfterOneThatWasCancelled)
{
    editing("half a text")->close();
    EXPECT_FALSE(*view->isEditing);
    EXPECT_EQ(effects, Words{}) << "the screen stays open";
    view->press("addUpdate");
    EXPECT_TRUE(*view->isEditing);
    EXPECT_EQ(*view->editMessage, "");
}

TEST_F(DetailOfAnIncident, WhileEditingCanOnlySaveAndOnlyWhatHasWords)
{
    editing("text");
    EXPECT_EQ(view->buttons(), std::vector<ActionButton>{});
    EXPECT_TRUE(view->isSaveEnabled());
    view->editMessage = " \n\t ";
    EXPECT_FALSE(view->isSaveEnabled());
    view->saveUpdate();
    run();
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(DetailOfAnIncident, SavesTheTextWithoutTheSpaceAroundItThenHandsOverTheRecordAndClosesTheEditor)
{
    transport.script(recordURL, 200, record(R"(, "message": "hello")"));
    editing("  hello \n")->saveUpdate();
    run();
    EXPECT_EQ(sent(), Words{"PATCH /user/api/v1/incidents/7"});
    EXPECT_EQ(transport.requests.at(0).body, R"({"message":"hello","append_update":true})");
    EXPECT_EQ(effects, Words{"update while busy"});
    EXPECT_FALSE(*view->isEditing);
    EXPECT_FALSE(*view->action->isInProgress);
    EXPECT_EQ(view->description(), "hello");
}

class RefusedUpdate : public DetailOfAnIncident, public testing::WithParamInterface<fakes::Refusal> {};

TEST_P(RefusedUpdate, KeepsTheEditorOpenWithTheTextAndSaysWhy)
{
    transport.script(recordURL, GetParam().answer);
    editing("hello ")->saveUpdate();
    run();
    EXPECT_EQ(view->action->alert.words(), GetParam().alert);
    EXPECT_TRUE(*view->isEditing);
    EXPECT_EQ(*view->editMessage, "hello ");
    EXPECT_EQ(effects, Words{});
    transport.script(recordURL, 200, record());
    view->saveUpdate();
    run();
    EXPECT_FALSE(*view->isEditing) << "it can be sent again";
}

INSTANTIATE_TEST_SUITE_P(EachAnswer, RefusedUpdate, testing::ValuesIn(fakes::refusals()));

TEST_F(DetailOfAnIncident, SavedTwiceSendsOnce)
{
    editing("hello")->saveUpdate();
    view->saveUpdate();
    run();
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(DetailOfAnIncident, LeftByEscapeClosesTheEditorFirstAndThenTheScreen)
{
    editing(" ")->requestClose();
    EXPECT_FALSE(*view->isEditing);
    EXPECT_EQ(effects, Words{});
    view->requestClose();
    EXPECT_EQ(effects, Words{"dismiss"});
}

TEST_F(DetailOfAnIncident, LeftTwiceBeforeItHasGoneTellsItsOwnerOnce)
{
    opened()->requestClose();
    view->requestClose();
    view->close();
    EXPECT_EQ(effects, Words{"dismiss"});
}

TEST_F(DetailOfAnIncident, LeftByEscapeWithATypedTextAsksFirst)
{
    editing("hello")->requestClose();
    EXPECT_TRUE(view->hasUnsavedText());
    EXPECT_TRUE(*view->showDiscardConfirmation);
    EXPECT_TRUE(*view->isEditing);
    view->keepEditing();
    EXPECT_FALSE(*view->showDiscardConfirmation);
    EXPECT_EQ(*view->editMessage, "hello");
    view->requestClose();
    view->discardChanges();
    EXPECT_FALSE(*view->showDiscardConfirmation);
    EXPECT_FALSE(*view->isEditing);
    EXPECT_FALSE(view->hasUnsavedText());
    EXPECT_EQ(effects, Words{}) << "the incident stays in sight";
}

TEST_F(DetailOfAnIncident, NoLongerAsksAboutATextThatTheServiceHasMeanwhile)
{
    editing("hello")->saveUpdate();
    run();
    view->requestClose();
    EXPECT_TRUE(*view->showDiscardConfirmation);
    transport.answer(HttpResponse{200, record()});
    run();
    EXPECT_FALSE(*view->showDiscardConfirmation);
    EXPECT_FALSE(*view->isEditing);
}

TEST_F(DetailOfAnIncident, StaysInSightWhereATextIsDiscardedThatTheServiceHasMeanwhile)
{
    editing("hello")->saveUpdate();
    run();
    view->requestClose();
    transport.answer(HttpResponse{200, record()});
    run();
    view->discardChanges();
    EXPECT_EQ(effects, Words{"update while busy"});
}

}  // namespace

}  // namespace larkspan::incidents
