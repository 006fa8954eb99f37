#include <gtest/gtest.h>

#include "EditedRecord.h"

namespace larkspan::presentation {

namespace {

using platform::HttpResponse;

template <typename Record>
class DeletedWhileItIsEdited : public EditedRecord<Record> {
protected:
    void expectTheTextInItsEditor() const
    {
        ASSERT_TRUE(this->isOpened());
        EXPECT_TRUE(*this->detail().isEditing);
        EXPECT_EQ(this->typed(), this->text);
        EXPECT_TRUE(this->view->hasUnsavedText());
    }
};

using Records = testing::Types<EditedIncident, EditedMaintenance, EditedComponent>;
TYPED_TEST_SUITE(DeletedWhileItIsEdited, Records, fakes::NameOfAList);

TYPED_TEST(DeletedWhileItIsEdited, BySomebodyElseItStaysWithItsTextWhereTheListLacksIt)
{
    this->serve({this->record("2")});
    this->view->refresh();
    this->run();
    EXPECT_FALSE(this->isListed("1"));
    EXPECT_TRUE(this->isListed("2"));
    this->expectTheTextInItsEditor();
}

TYPED_TEST(DeletedWhileItIsEdited, BySomebodyElseSavingSaysSoAndKeepsTheText)
{
    this->transport.script(this->recordURL, 404, "");
    this->save();
    this->run();
    EXPECT_EQ(this->detail().action->alert.words(), "Server returned HTTP status code 404.");
    EXPECT_TRUE(this->detail().isIdle());
    this->expectTheTextInItsEditor();
}

TYPED_TEST(DeletedWhileItIsEdited, BySomebodyElseItIsLeftByWayOfTheQuestionAndIsNotListedAgain)
{
    this->serve({this->record("2")});
    this->view->refresh();
    this->run();
    this->detail().requestClose();
    EXPECT_TRUE(*this->detail().showDiscardConfirmation);
    this->detail().discardChanges();
    this->detail().requestClose();
    this->run();
    EXPECT_FALSE(this->isOpened());
    EXPECT_FALSE(this->isListed("1"));
}

TYPED_TEST(DeletedWhileItIsEdited, ByItsUserItClosesWithItsEditorAndLosesItsRow)
{
    this->transport.script(this->recordURL, 204, "");
    this->serve({this->record("2")});
    this->detail().deleteRecord();
    this->run();
    EXPECT_FALSE(this->isOpened());
    EXPECT_FALSE(this->view->hasUnsavedText());
    EXPECT_FALSE(this->isListed("1"));
    EXPECT_TRUE(this->isListed("2"));
}

TYPED_TEST(DeletedWhileItIsEdited, ByItsUserAndRefusedItKeepsItsTextAndSaysWhy)
{
    this->transport.script(this->recordURL, 409, "");
    this->detail().deleteRecord();
    this->run();
    EXPECT_EQ(this->detail().action->alert.words(), "Server returned HTTP status code 409.");
    EXPECT_TRUE(this->isListed("1"));
    this->expectTheTextInItsEditor();
}

TYPED_TEST(DeletedWhileItIsEdited, ByItsUserItCannotBeSavedUntilThatHasEnded)
{
    this->detail().deleteRecord();
    this->run();
    EXPECT_FALSE(this->detail().isSaveEnabled());
    this->save();
    this->run();
    EXPECT_EQ(this->transport.requests.size(), 1u);
    this->transport.answer(HttpResponse{204, ""});
    this->run();
    EXPECT_FALSE(this->isOpened());
}

TYPED_TEST(DeletedWhileItIsEdited, ByItsUserTheQuestionWhetherItsTextIsLostGoesWithIt)
{
    int left = 0;
    this->detail().deleteRecord();
    this->run();
    EXPECT_TRUE(this->detail().asksBefore([&left] { ++left; }));
    this->transport.answer(HttpResponse{204, ""});
    this->run();
    EXPECT_FALSE(this->isOpened());
    EXPECT_EQ(left, 1);
}

}  // namespace

}  // namespace larkspan::presentation
