#include <gtest/gtest.h>

#include "components/DetailOfAComponent.h"
#include "fakes/Refusal.h"

namespace larkspan::components {

namespace {

using presentation::Choice;

TEST_F(DetailOfAComponent, OpensItsEditorWithTheValuesOfTheRecord)
{
    editing(whole);
    EXPECT_TRUE(*view->isEditing);
    EXPECT_EQ(*view->editedName, "Component 7");
    EXPECT_EQ(*view->editedStatus, "operational");
    EXPECT_EQ(*view->editedDescription, "Serves all.");
    EXPECT_EQ(*view->editedGroupId, "b");
    EXPECT_EQ(view->closeLabel(), "Cancel");
    editing();
    EXPECT_EQ(*view->editedDescription, "");
    EXPECT_EQ(*view->editedGroupId, std::nullopt);
}

TEST_F(DetailOfAComponent, BeforeItsFirstEditHasNothingInTheEditorButTheStatusUp)
{
    opened(whole);
    EXPECT_EQ(*view->editedName, "");
    EXPECT_EQ(*view->editedStatus, "up");
    EXPECT_EQ(*view->editedDescription, "");
    EXPECT_EQ(*view->editedGroupId, std::nullopt);
}

TEST_F(DetailOfAComponent, OffersThreeStatuses)
{
    Words choices;
    for (const auto& [label, value] : ComponentDetailView::statusChoices) {
        choices.push_back(std::string(label) + " " + std::string(value));
    }
    EXPECT_EQ(choices, (Words{"Up up", "Degraded degraded", "Down down"}));
}

TEST_F(DetailOfAComponent, LightsTheSegmentOfItsStatusAndNoneForAnyOtherWord)
{
    editing();
    const std::vector<std::pair<std::string, std::optional<std::size_t>>> rows{
        {"up", 0}, {"degraded", 1}, {"down", 2}, {"operational", {}}, {"partialoutage", {}}, {"Up", {}}, {"", {}}};
    for (const auto& [status, place] : rows) {
        view->editedStatus = status;
        EXPECT_EQ(view->selectedStatus(), place) << status;
    }
    view->chooseStatus(2);
    EXPECT_EQ(*view->editedStatus, "down");
}

TEST_F(DetailOfAComponent, NamesAStatusThatCannotBeChosenUntilAnotherIsChosen)
{
    editing(R"(, "monitor_state": "PartialOutage")");
    EXPECT_EQ(view->unlistedStatus(), "Now “PartialOutage”, which stays until you choose another.");
    view->editedStatus = "";
    EXPECT_EQ(view->unlistedStatus(), "There is no status yet.");
    view->editedStatus = std::string(3'000, 'w');
    EXPECT_LT(view->unlistedStatus().size(), 2'200u) << "only the beginning of an extremely long word";
    for (std::size_t place = 0; place < ComponentDetailView::statusChoices.size(); ++place) {
        view->chooseStatus(place);
        EXPECT_EQ(view->unlistedStatus(), "") << place;
    }
}

TEST_F(DetailOfAComponent, WithAStatusThatCannotBeChosenSendsItUnchanged)
{
    editing(R"(, "monitor_state": "PartialOutage")");
    view->editedName = "New";
    save();
    EXPECT_EQ(transport.requests.at(0).body, R"({"name":"New","status":"PartialOutage"})");
}

TEST_F(DetailOfAComponent, OffersNoneAndEachGroupInOrder)
{
    editing(whole);
    EXPECT_TRUE(view->showsGroupPicker());
    EXPECT_EQ(view->groupChoices(), (std::vector<Choice>{{"", "None"}, {"a", "Group a"}, {"b", "Group b"}}));
    EXPECT_EQ(view->selectedGroup(), "b");
    view->chooseGroup("");
    EXPECT_EQ(*view->editedGroupId, std::nullopt);
    EXPECT_EQ(view->selectedGroup(), "");
    view->chooseGroup("a");
    EXPECT_EQ(*view->editedGroupId, "a");
}

TEST_F(DetailOfAComponent, WithNoGroupsLoadedHasNoGroupPickerAndSendsItsGroupUnchanged)
{
    transport.script(groupsURL, 500, "");
    editing(whole);
    EXPECT_FALSE(view->showsGroupPicker());
    save();
    EXPECT_EQ(transport.requests.at(0).body,
        R"({"name":"Component 7","description":"Serves all.","status":"operational","group_id":"b"})");
}

TEST_F(DetailOfAComponent, SendsWhatWasEditedThenShowsTheRecordTellsItsOwnerAndLeavesTheEditor)
{
    transport.script(url, 200, componentRecord("7", R"(, "monitor_state": "down", "description": "as answered")"));
    editing(whole);
    view->editedName = "New";
    view->chooseStatus(2);
    view->editedDescription = "Other.";
    view->chooseGroup("");
    save();
    EXPECT_EQ(sent(), Words{"PUT /user/api/components/7"});
    EXPECT_EQ(transport.requests.at(0).body, R"({"name":"New","description":"Other.","status":"down"})");
    EXPECT_EQ(view->description(), "as answered");
    EXPECT_EQ(effects, Words{"update Component 7 editing busy"});
    EXPECT_FALSE(*view->isEditing);
    EXPECT_TRUE(view->isIdle());
}

TEST_F(DetailOfAComponent, WithANameOfSpacesCannotBeSaved)
{
    editing();
    for (const auto* const name : {"", "   ", " \n\t "}) {
        view->editedName = name;
        EXPECT_FALSE(view->isSaveEnabled());
        save();
    }
    EXPECT_TRUE(transport.requests.empty());
    view->editedName = "A";
    EXPECT_TRUE(view->isSaveEnabled());
}

TEST_F(DetailOfAComponent, SavesANameWithoutTheSpaceAroundIt)
{
    editing();
    view->editedName = "  A  ";
    save();
    EXPECT_EQ(transport.requests.at(0).body, R"({"name":"A","status":"unknown"})");
}

TEST_F(DetailOfAComponent, KeepsADescriptionOfAnyLengthWholeWhenItsNameAloneIsChanged)
{
    const std::string text(30'000, 'd');
    editing(R"(, "description": ")" + text + R"(")");
    EXPECT_LT(view->description().size(), text.size()) << "the screen shows its beginning";
    EXPECT_FALSE(view->hasUnsavedText());
    view->editedName = "New";
    save();
    EXPECT_EQ(transport.requests.at(0).body, R"({"name":"New","description":")" + text + R"(","status":"unknown"})");
}

TEST_F(DetailOfAComponent, SendsAClearedDescriptionAsAbsentAndASingleSpaceAsItIs)
{
    editing(whole);
    view->editedDescription = "";
    save();
    EXPECT_EQ(transport.requests.at(0).body, R"({"name":"Component 7","status":"operational","group_id":"b"})");
    editing(whole);
    view->editedDescription = " ";
    save();
    EXPECT_EQ(transport.requests.at(0).body,
        R"({"name":"Component 7","description":" ","status":"operational","group_id":"b"})");
}

TEST_F(DetailOfAComponent, CancelledShowsTheOldValuesAndIsEditedAnewFromThem)
{
    editing(whole);
    view->editedName = "Typed";
    view->chooseStatus(2);
    view->close();
    EXPECT_FALSE(*view->isEditing);
    EXPECT_EQ(view->component->name, "Component 7");
    EXPECT_EQ(view->status().text, "Operational");
    EXPECT_EQ(effects, Words{}) << "the screen stays open";
    view->beginEditing();
    EXPECT_EQ(*view->editedName, "Component 7");
    EXPECT_EQ(*view->editedStatus, "operational");
}

TEST_F(DetailOfAComponent, IsEditedAgainFromWhatWasSaved)
{
    transport.script(url, 200, R"({"id": "7", "name": "Saved"})");
    editing();
    save();
    view->beginEditing();
    EXPECT_EQ(*view->editedName, "Saved");
}

class RefusedChange : public DetailOfAComponent, public testing::WithParamInterface<fakes::Refusal> {};

TEST_P(RefusedChange, KeepsTheEditFormWithItsTypedValuesAndSaysWhy)
{
    transport.script(url, GetParam().answer);
    editing(whole);
    view->editedName = "  Typed ";
    view->editedDescription = "";
    save();
    EXPECT_EQ(view->action->alert.words(), GetParam().alert);
    EXPECT_TRUE(*view->isEditing);
    EXPECT_EQ(*view->editedName, "  Typed ");
    EXPECT_EQ(*view->editedDescription, "");
    EXPECT_EQ(effects, Words{});
    EXPECT_TRUE(view->isSaveEnabled()) << "it can be sent again";
}

INSTANTIATE_TEST_SUITE_P(EachAnswer, RefusedChange, testing::ValuesIn(fakes::refusals()));

TEST_F(DetailOfAComponent, WhileItIsSavedCanNeitherBeSavedAgainNorClosedNorDeleted)
{
    editing();
    view->saveChanges();
    EXPECT_FALSE(view->isSaveEnabled());
    EXPECT_FALSE(view->isIdle());
    view->saveChanges();
    view->close();
    view->requestClose();
    view->confirmDelete();
    view->deleteRecord();
    run();
    EXPECT_EQ(sent(), Words{"PUT /user/api/components/7"});
    EXPECT_TRUE(*view->isEditing);
    EXPECT_FALSE(*view->showingDeleteConfirmation);
    EXPECT_EQ(effects, Words{});
}

TEST_F(DetailOfAComponent, LeftByEscapeWithoutAChangeClosesTheEditorFirstAndThenTheScreen)
{
    editing(whole)->requestClose();
    EXPECT_FALSE(*view->isEditing);
    EXPECT_EQ(effects, Words{});
    view->requestClose();
    EXPECT_EQ(effects, Words{"dismiss Component 7"});
}

TEST_F(DetailOfAComponent, WithoutADescriptionIsLeftWithoutAQuestionWhereNothingIsTyped)
{
    editing();
    EXPECT_FALSE(view->hasUnsavedText());
    view->requestClose();
    EXPECT_FALSE(*view->isEditing);
}

TEST_F(DetailOfAComponent, LeftByEscapeWithAnyChangeAsksFirst)
{
    const std::vector<void (*)(ComponentDetailView&)> changes{[](auto& each) { each.editedName = "Typed"; },
        [](auto& each) { each.editedDescription = ""; }, [](auto& each) { each.chooseStatus(0); },
        [](auto& each) { each.chooseGroup(""); }};
    for (const auto change : changes) {
        editing(whole);
        EXPECT_FALSE(view->hasUnsavedText());
        change(*view);
        EXPECT_TRUE(view->hasUnsavedText());
        view->requestClose();
        EXPECT_TRUE(*view->showDiscardConfirmation);
        EXPECT_TRUE(*view->isEditing);
        view->keepEditing();
        EXPECT_FALSE(*view->showDiscardConfirmation);
        EXPECT_TRUE(view->hasUnsavedText());
        view->requestClose();
        view->discardChanges();
        EXPECT_FALSE(*view->showDiscardConfirmation);
        EXPECT_FALSE(*view->isEditing);
        EXPECT_FALSE(view->hasUnsavedText());
    }
    EXPECT_EQ(effects, Words{}) << "the component stays in sight";
}

}  // namespace

}  // namespace larkspan::components
