#include <gtest/gtest.h>

#include <functional>

#include "EditedRecord.h"

namespace larkspan::presentation {

namespace {

using platform::HttpResponse;

/// A text whose loss the user confirms before the service has answered the request to save it.
template <typename Record>
class DiscardedWhileSaving : public EditedRecord<Record> {
protected:
    DiscardedWhileSaving()
    {
        this->save();
        this->run();
    }

    void end(HttpResponse answer)
    {
        this->serve({this->saved(), this->record("2")});
        this->transport.answer(std::move(answer));
        this->run();
    }
};

using Records = testing::Types<EditedIncident, EditedMaintenance, EditedComponent>;
TYPED_TEST_SUITE(DiscardedWhileSaving, Records, fakes::NameOfAList);

TYPED_TEST(DiscardedWhileSaving, LeavesOnceForWhatWasWantedAndHarmsNothingWhenTheSaveEnds)
{
    int left = 0;
    ASSERT_TRUE(this->detail().asksBefore([&left] { ++left; }));
    this->detail().discardChanges();
    EXPECT_EQ(left, 1);
    EXPECT_FALSE(*this->detail().showDiscardConfirmation);
    this->end({200, this->saved()});
    EXPECT_EQ(left, 1);
    EXPECT_TRUE(this->detail().isIdle());
    EXPECT_FALSE(*this->detail().isEditing);
    EXPECT_FALSE(this->view->hasUnsavedText());
    EXPECT_EQ(this->transport.requests.front().url, this->recordURL) << "it was not taken back";
}

TYPED_TEST(DiscardedWhileSaving, LeavesOnceAlsoWhereTheSaveIsRefused)
{
    int left = 0;
    ASSERT_TRUE(this->detail().asksBefore([&left] { ++left; }));
    this->detail().discardChanges();
    this->end({422, ""});
    EXPECT_EQ(left, 1);
    EXPECT_EQ(this->detail().action->alert.words(), "Server returned HTTP status code 422.");
}

/// The records that can be left while they are saved.
template <typename Record>
class LeftWhileSaving : public DiscardedWhileSaving<Record> {
protected:
    LeftWhileSaving()
    {
        this->detail().requestClose();
        EXPECT_TRUE(*this->detail().showDiscardConfirmation);
        this->detail().discardChanges();
    }

    void expectTheRecordWithoutItsEditor() const
    {
        ASSERT_TRUE(this->isOpened());
        EXPECT_FALSE(*this->detail().isEditing);
        EXPECT_FALSE(*this->detail().showDiscardConfirmation);
        EXPECT_FALSE(this->view->hasUnsavedText());
    }
};

using Leavable = testing::Types<EditedIncident, EditedMaintenance>;
TYPED_TEST_SUITE(LeftWhileSaving, Leavable, fakes::NameOfAList);

TYPED_TEST(LeftWhileSaving, ShowsTheRecordAtOnceAndWithTheTextWhenTheServiceHasTakenThat)
{
    this->expectTheRecordWithoutItsEditor();
    EXPECT_EQ(this->detail().description(), "");
    this->end({200, this->saved()});
    this->expectTheRecordWithoutItsEditor();
    EXPECT_EQ(this->detail().description(), this->text);
    EXPECT_EQ(this->detail().action->alert.words(), "");
}

TYPED_TEST(LeftWhileSaving, SaysWhyTheSaveWasRefusedAndOpensNoEditorForThat)
{
    this->end({422, ""});
    this->expectTheRecordWithoutItsEditor();
    EXPECT_EQ(this->detail().action->alert.words(), "Server returned HTTP status code 422.");
}

TYPED_TEST(LeftWhileSaving, OpensItsEditorAgainOnlyWhenTheSaveHasEnded)
{
    this->detail().beginEditing();
    this->expectTheRecordWithoutItsEditor();
    this->end({200, this->saved()});
    this->detail().beginEditing();
    EXPECT_TRUE(*this->detail().isEditing);
}

}  // namespace

}  // namespace larkspan::presentation
