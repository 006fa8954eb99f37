#include "presentation/forms/EventForm.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "incidents/FormOfAnIncident.h"
#include "maintenances/FormOfAMaintenance.h"
#include "presentation/shapes/Confirmation.h"

namespace larkspan::presentation {

namespace {

using platform::HttpResponse;
using Words = std::vector<std::string>;

template <typename Form>
class FormOfAnEvent : public Form {};

struct NameOfAForm {
    template <typename Form>
    static std::string GetName(int)
    {
        return std::is_same_v<Form, incidents::FormOfAnIncident> ? "Incident" : "Maintenance";
    }
};

using Forms = testing::Types<incidents::FormOfAnIncident, maintenances::FormOfAMaintenance>;
TYPED_TEST_SUITE(FormOfAnEvent, Forms, NameOfAForm);

TYPED_TEST(FormOfAnEvent, CreatedTellsItsOwnerThenClosesThenIsIdle)
{
    this->titled("New");
    this->saved();
    EXPECT_EQ(this->effects, (Words{"8 while busy", "dismiss while busy"}));
    EXPECT_TRUE(this->form->isIdle());
    EXPECT_EQ(this->form->action->alert.words(), "");
}

TYPED_TEST(FormOfAnEvent, WhileItIsSentCanNeitherBeSavedAgainNorLeft)
{
    const auto written = this->titled("New");
    written->save();
    EXPECT_FALSE(written->isSaveEnabled());
    EXPECT_FALSE(written->isCloseEnabled());
    written->save();
    written->close();
    written->requestClose();
    this->run();
    EXPECT_EQ(this->transport.requests.size(), 1u);
    EXPECT_EQ(this->effects, Words{});
    EXPECT_FALSE(*written->showDiscardConfirmation);
}

TYPED_TEST(FormOfAnEvent, LeftByEscapeWithSomethingTypedAsksFirst)
{
    const auto written = this->opened();
    written->message = "We look";
    EXPECT_TRUE(written->hasUnsavedText());
    written->requestClose();
    EXPECT_TRUE(*written->showDiscardConfirmation);
    EXPECT_EQ(discardConfirmation.title, "Discard Changes?");
    written->keepEditing();
    EXPECT_FALSE(*written->showDiscardConfirmation);
    EXPECT_EQ(*written->message, "We look");
    EXPECT_EQ(this->effects, Words{});
    written->requestClose();
    written->discardChanges();
    EXPECT_FALSE(*written->showDiscardConfirmation);
    EXPECT_EQ(this->effects, Words{"dismiss"});
}

TYPED_TEST(FormOfAnEvent, CancelledClosesWithoutAsking)
{
    this->titled("New")->close();
    EXPECT_EQ(this->effects, Words{"dismiss"});
}

TYPED_TEST(FormOfAnEvent, ThatIsGoneStillEndsItsRequestAndThenIsFreed)
{
    this->titled("New")->save();
    this->run();
    const std::weak_ptr<EventForm> held = this->form;
    this->form.reset();
    EXPECT_FALSE(held.expired());
    this->transport.answer(HttpResponse{200, this->created});
    this->run();
    EXPECT_TRUE(held.expired());
}

}  // namespace

}  // namespace larkspan::presentation
