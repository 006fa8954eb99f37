#include <gtest/gtest.h>

#include "components/DetailOfAComponent.h"
#include "fakes/Refusal.h"

namespace larkspan::components {

namespace {

TEST_F(DetailOfAComponent, AsksBeforeItIsDeletedAndCancelDoesNothing)
{
    opened()->confirmDelete();
    EXPECT_TRUE(*view->showingDeleteConfirmation);
    EXPECT_EQ(view->deleteConfirmation.title, "Delete Component");
    EXPECT_EQ(view->deleteConfirmation.text, "");
    EXPECT_EQ(view->deleteConfirmation.confirm, "Delete");
    EXPECT_EQ(view->deleteConfirmation.cancel, "Cancel");
    view->cancelDelete();
    run();
    EXPECT_FALSE(*view->showingDeleteConfirmation);
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(DetailOfAComponent, DeletedTellsItsOwnerAndThenCloses)
{
    transport.script(url, 204, "");
    opened()->confirmDelete();
    view->deleteRecord();
    EXPECT_FALSE(*view->showingDeleteConfirmation);
    EXPECT_EQ(ComponentDetailView::busyText, "Processing...");
    run();
    EXPECT_EQ(sent(), Words{"DELETE /user/api/components/7"});
    EXPECT_EQ(effects, (Words{"delete Component 7 busy", "dismiss Component 7 busy"}));
    EXPECT_TRUE(view->isIdle());
}

TEST_F(DetailOfAComponent, DeletedTwiceSendsOnce)
{
    opened()->deleteRecord();
    view->deleteRecord();
    run();
    EXPECT_EQ(sent(), Words{"DELETE /user/api/components/7"});
}

class RefusedDeletion : public DetailOfAComponent, public testing::WithParamInterface<fakes::Refusal> {};

TEST_P(RefusedDeletion, IsAnAlertThatChangesNothingAndLeavesTheScreenOpen)
{
    transport.script(url, GetParam().answer);
    opened()->deleteRecord();
    run();
    EXPECT_EQ(view->action->alert.words(), GetParam().alert);
    EXPECT_EQ(effects, Words{});
    EXPECT_TRUE(view->isIdle());
    view->action->alert.dismiss();
    EXPECT_EQ(view->action->alert.words(), "");
}

INSTANTIATE_TEST_SUITE_P(EachAnswer, RefusedDeletion, testing::ValuesIn(fakes::refusals()));

}  // namespace

}  // namespace larkspan::components
