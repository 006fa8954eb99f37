#include "components/StatusPageComponentsView.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "components/ComponentDetailView.h"
#include "components/ComponentRow.h"
#include "components/ComponentsOfAPage.h"

namespace larkspan::components {

namespace {

using platform::HttpResponse;
using presentation::Content;
using presentation::Placeholder;
using presentation::Tone;

class ListOfComponents : public testing::Test, public ComponentsOfAPage {
protected:
    ListOfComponents()
    {
        serveComponents({componentRecord("1", inGroup("a")), componentRecord("2")});
        serveGroups({groupRecord("a"), groupRecord("b")});
    }

    void appear()
    {
        view->appear();
        run();
        transport.requests.clear();
    }

    void open(const std::string& id)
    {
        view->openComponent(id);
        run();
        transport.requests.clear();
    }

    /// The titles; those of headings in brackets.
    Words shown() const
    {
        Words words;
        for (const auto& row : view->rows()) words.push_back(row.isHeading ? "[" + row.title + "]" : row.title);
        return words;
    }

    std::shared_ptr<StatusPageComponentsView> view = std::make_shared<StatusPageComponentsView>(
        StatusPageComponentsView::Ports{main, api, credentials, links}, "p");
};

const Words wholeList{"[Group a]", "Component 1", "[Group b]", "[Ungrouped]", "Component 2"};

TEST_F(ListOfComponents, DuringTheFirstLoadIsProgress)
{
    view->appear();
    EXPECT_EQ(view->content(), Content::loading);
    EXPECT_EQ(view->placeholder(), (Placeholder{.text = "Loading Components...", .showsProgress = true}));
}

TEST_F(ListOfComponents, HasSectionsByGroup)
{
    appear();
    EXPECT_EQ(view->content(), Content::records);
    EXPECT_EQ(view->placeholder(), Placeholder{});
    EXPECT_EQ(shown(), wholeList);
}

TEST_F(ListOfComponents, WithoutGroupsHasEveryComponentInOneOfTheTwoSectionsAtTheEnd)
{
    transport.script(groupsURL, 500, "");
    appear();
    EXPECT_FALSE(*view->viewModel->showErrorAlert);
    EXPECT_EQ(shown(), (Words{"[Ungrouped]", "Component 2", "[Other Components]", "Component 1"}));
}

TEST_F(ListOfComponents, OfAnEmptyPageSaysSoWithoutAnyAlert)
{
    serveComponents({});
    appear();
    EXPECT_EQ(view->content(), Content::empty);
    EXPECT_EQ(view->placeholder(),
        (Placeholder{.symbol = "square.grid.2x2",
            .tone = Tone::secondary,
            .title = "No Components",
            .text = "This status page has no components yet."}));
    EXPECT_FALSE(*view->viewModel->showErrorAlert);
    EXPECT_TRUE(view->rows().empty()) << "groups alone are no list";
}

TEST_F(ListOfComponents, ThatFailsToLoadSaysWhyInTheAlertAndInTheBodyAndOffersRetry)
{
    transport.script(listURL, 500, "");
    appear();
    EXPECT_EQ(view->content(), Content::failure);
    EXPECT_EQ(view->placeholder(),
        (Placeholder{.symbol = "exclamationmark.triangle",
            .tone = Tone::yellow,
            .text = "Server returned HTTP status code 500.",
            .offersRetry = true}));
    EXPECT_TRUE(*view->viewModel->showErrorAlert);
    EXPECT_EQ(view->alert()->words(), "Server returned HTTP status code 500.");
}

TEST_F(ListOfComponents, WhoseAlertIsDismissedShowsNoComponents)
{
    transport.script(listURL, 500, "");
    appear();
    view->alert()->dismiss();
    EXPECT_EQ(view->content(), Content::empty);
    EXPECT_EQ(view->placeholder().title, "No Components");
    view->refresh();
    run();
    EXPECT_EQ(view->content(), Content::failure) << "only a refresh brings it back";
}

TEST_F(ListOfComponents, WhoseLoadsFailBesideEachOtherHasAnAlertForEach)
{
    transport.forget(listURL);
    view->appear();
    view->refresh();
    run();
    transport.answer(HttpResponse{500, ""});
    run();
    transport.answer(HttpResponse{502, ""});
    run();
    EXPECT_EQ(view->alert()->words(), "Server returned HTTP status code 500.");
    const int first = view->alert()->number();
    view->alert()->dismiss();
    EXPECT_EQ(view->alert()->words(), "Server returned HTTP status code 502.");
    EXPECT_NE(view->alert()->number(), first);
    view->alert()->dismiss();
    EXPECT_EQ(view->alert()->words(), "");
}

TEST_F(ListOfComponents, WhoseFailureHasNoWordsHasThemFromTheScreen)
{
    view->viewModel->showErrorAlert = true;
    EXPECT_EQ(view->placeholder().text, "Could not load components.");
    EXPECT_EQ(view->alert()->words(), "An unknown error occurred.");
}

TEST_F(ListOfComponents, IsBlankedByARefreshThatFails)
{
    appear();
    transport.script(listURL, 403, "");
    view->refresh();
    EXPECT_EQ(view->content(), Content::records) << "until it has failed";
    run();
    EXPECT_EQ(view->content(), Content::failure);
    EXPECT_TRUE(view->rows().empty());
}

TEST_F(ListOfComponents, IsWorthAPromptOfTheStoreOnlyWhenTheUserAsks)
{
    appear();
    EXPECT_EQ(credentials.promptsAllowed, 0);
    view->refresh();
    EXPECT_EQ(credentials.promptsAllowed, 1);
}

TEST_F(ListOfComponents, TellsItsObserversOfLoadsAndOfWhatStandsInFront)
{
    int changes = 0;
    const auto subscriptions = view->observe([&changes] { ++changes; });
    appear();
    EXPECT_GT(changes, 0);
    const int before = changes;
    view->openComponent("1");
    EXPECT_EQ(changes, before + 1);
}

class OpenedComponent : public ListOfComponents {
protected:
    OpenedComponent()
    {
        appear();
        open("1");
    }

    /// Answers the edit under way.
    void answer(const std::string& record)
    {
        transport.answer(HttpResponse{200, record});
        run();
    }

    void save()
    {
        view->detail()->beginEditing();
        view->detail()->editedName = "New";
        view->detail()->saveChanges();
        run();
    }
};

TEST_F(OpenedComponent, StandsInFrontOfTheListWithItsGroups)
{
    ASSERT_TRUE(view->presentedComponent.isOpen());
    EXPECT_EQ(view->presentedComponent.screen()->id(), "1");
    EXPECT_EQ(view->detail()->component->name, "Component 1");
    EXPECT_EQ(view->detail()->pageId, "p");
    EXPECT_EQ(view->detail()->groups->size(), 2u);
}

TEST_F(OpenedComponent, IsNoneIfItsRowHasGone)
{
    view->closeComponent();
    view->openComponent("9");
    view->openComponent("group:a");
    EXPECT_FALSE(view->presentedComponent.isOpen());
    EXPECT_EQ(view->detail(), nullptr);
}

TEST_F(OpenedComponent, ThatIsMovedToAnotherGroupChangesSectionAtOnceWithoutAFetch)
{
    save();
    answer(R"({"id": "1", "name": "New")" + inGroup("b") + "}");
    EXPECT_EQ(shown(), (Words{"[Group a]", "[Group b]", "New", "[Ungrouped]", "Component 2"}));
    EXPECT_EQ(view->detail()->component->name, "New");
    EXPECT_EQ(sent(), Words{"PUT /user/api/components/1"});
}

TEST_F(OpenedComponent, ThatTheListHasNoMoreIsChangedInFrontAndNotInTheList)
{
    save();
    serveComponents({componentRecord("2")});
    view->refresh();
    run();
    answer(R"({"id": "1", "name": "New"})");
    EXPECT_EQ(view->detail()->component->name, "New");
    EXPECT_EQ(shown(), (Words{"[Group a]", "[Group b]", "[Ungrouped]", "Component 2"}));
}

TEST_F(OpenedComponent, OfAnIdThatTheListHasTwiceIsChangedInItsFirstRow)
{
    serveComponents({componentRecord("1"), componentRecord("1")});
    view->refresh();
    run();
    save();
    answer(R"({"id": "1", "name": "New"})");
    EXPECT_EQ(shown(), (Words{"[Group a]", "[Group b]", "[Ungrouped]", "New", "Component 1"}));
}

TEST_F(OpenedComponent, ThatIsDeletedClosesAndTakesEveryRowOfItsIdAlongWithoutAFetch)
{
    serveComponents({componentRecord("1"), componentRecord("2"), componentRecord("1")});
    view->refresh();
    run();
    transport.requests.clear();
    transport.script(std::string(recordURL) + "1", 204, "");
    view->detail()->deleteRecord();
    run();
    EXPECT_FALSE(view->presentedComponent.isOpen());
    EXPECT_EQ(view->detail(), nullptr);
    EXPECT_EQ(shown(), (Words{"[Group a]", "[Group b]", "[Ungrouped]", "Component 2"}));
    EXPECT_EQ(sent(), Words{"DELETE /user/api/components/1"});
}

TEST_F(OpenedComponent, ThatIsClosedLeavesTheListAsItIsWithoutAFetch)
{
    view->detail()->close();
    EXPECT_FALSE(view->presentedComponent.isOpen());
    EXPECT_EQ(view->detail(), nullptr);
    run();
    EXPECT_EQ(shown(), wholeList);
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(OpenedComponent, ThatIsClosedDuringARequestDoesNotComeBackButItsRowIsPatched)
{
    save();
    view->closeComponent();
    answer(R"({"id": "1", "name": "New")" + inGroup("a") + "}");
    EXPECT_FALSE(view->presentedComponent.isOpen());
    EXPECT_EQ(shown().at(1), "New");
}

TEST_F(OpenedComponent, ThatEndsItsDeletionBehindAnotherLeavesThatOneAlone)
{
    view->detail()->deleteRecord();
    run();
    view->closeComponent();
    open("2");
    transport.answer(HttpResponse{204, ""});
    run();
    ASSERT_TRUE(view->presentedComponent.isOpen());
    EXPECT_EQ(view->presentedComponent.screen()->id(), "2");
    EXPECT_EQ(shown(), (Words{"[Group a]", "[Group b]", "[Ungrouped]", "Component 2"}));
}

TEST_F(OpenedComponent, WhoseEditHasAnAnswerThatSaysNothingKeepsTheTextAndLoadsTheListAnew)
{
    for (const auto* const body : {"", "{}", R"({"id": "2", "name": "New"})"}) {
        transport.requests.clear();
        save();
        serveComponents({R"({"id": "1", "name": "New"})", componentRecord("2")});
        answer(body);
        EXPECT_TRUE(*view->detail()->isEditing) << body;
        EXPECT_EQ(*view->detail()->editedName, "New");
        EXPECT_EQ(view->detail()->component->id, "1");
        EXPECT_NE(view->detail()->action->alert.words(), "");
        EXPECT_EQ(shown(), (Words{"[Group a]", "[Group b]", "[Ungrouped]", "New", "Component 2"})) << body;
        EXPECT_EQ(transport.requests.size(), 3u) << "the order, and the list with its groups once";
        view->detail()->close();
    }
}

TEST_F(OpenedComponent, WhoseListIsGoneEndsItsRequestForNobody)
{
    save();
    const std::weak_ptr<StatusPageComponentsView> list = view;
    const std::weak_ptr<ComponentDetailView> detail = view->detail();
    view.reset();
    EXPECT_TRUE(list.expired());
    EXPECT_FALSE(detail.expired());
    answer(R"({"id": "1", "name": "New"})");
    EXPECT_TRUE(detail.expired());
}

TEST_F(ListOfComponents, OfTwoWithOneIdEachRowOpensItsOwn)
{
    serveComponents({componentRecord("1"), componentRecord("1", inGroup("a"))});
    appear();
    ASSERT_EQ(shown(), (Words{"[Group a]", "Component 1", "[Group b]", "[Ungrouped]", "Component 1"}));
    open(view->rows().at(1).id);
    EXPECT_EQ(view->detail()->component->groupId, "a");
    view->closeComponent();
    open(view->rows().at(4).id);
    EXPECT_EQ(view->detail()->component->groupId, std::nullopt);
}

TEST_F(ListOfComponents, ADescriptionBeyondAllBoundsIsShownInPart)
{
    const std::string description(1'000'000, 'x');
    serveComponents({componentRecord("1", R"(, "description": ")" + description + '"')});
    appear();
    EXPECT_EQ(view->rows().back().description, std::string(2'000, 'x') + "…");
    open("1");
    EXPECT_EQ(view->detail()->description(), std::string(20'000, 'x') + "…");
}

}  // namespace

}  // namespace larkspan::components
