#include "presentation/forms/ComponentSelection.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "api/KestruneAPI.h"
#include "fakes/PageComponents.h"

namespace larkspan::presentation {

namespace {

using Choices = std::vector<Choice>;
using Failure = ComponentSelection::ComponentFailure;
using Words = std::vector<std::string>;
using platform::HttpResponse;

const Choice entirePage{"", "Entire status page"};
const Choice noComponent{"", "Select a component"};

class SelectionOfComponents : public testing::Test, public fakes::PageComponents {
protected:
    std::shared_ptr<ComponentSelection> made(Failure failure = Failure::silent)
    {
        return std::make_shared<ComponentSelection>(ComponentSelection::Ports{main, api, api, locale}, "p",
            ComponentSelection::Words{
                .noMonitor = "Any", .hintForPage = "", .hintForComponent = "", .failure = failure},
            [this](std::string words) { alerts.push_back(std::move(words)); });
    }

    std::shared_ptr<ComponentSelection> loaded(Failure failure = Failure::silent)
    {
        selection = made(failure);
        selection->load();
        run();
        return selection;
    }

    void choose(const std::string& group, const std::string& component)
    {
        selection->chooseGroup(group);
        selection->chooseComponent(component);
        run();
    }

    /// Answers the oldest waiting request with one monitor.
    void answerMonitor(const std::string& id)
    {
        transport.answer(
            HttpResponse{200, R"({"monitors": [{"id": ")" + id + R"(", "name": "n", "component_id": "c"}]})"});
        run();
    }

    std::string monitorIds() const
    {
        std::string ids;
        for (const auto& monitor : *selection->componentMonitors) ids += monitor.id + " ";
        return ids;
    }

    std::shared_ptr<ComponentSelection> selection;
    Words alerts;
};

TEST_F(SelectionOfComponents, FetchesComponentsAndGroupsBesideEachOther)
{
    transport.forget(componentsURL);
    transport.forget(groupsURL);
    loaded();
    EXPECT_EQ(transport.pending.size(), 2u);
    EXPECT_TRUE(*selection->isLoadingComponents);
    EXPECT_EQ(selection->groupChoices(), Choices{entirePage});
    transport.answer(HttpResponse{200, componentsBody});
    run();
    EXPECT_TRUE(*selection->isLoadingComponents) << "the groups are still missing";
    transport.answer(HttpResponse{200, groupsBody});
    run();
    EXPECT_FALSE(*selection->isLoadingComponents);
    EXPECT_EQ(selection->groupChoices(), (Choices{entirePage, {"back", "Backend"}}));
}

TEST_F(SelectionOfComponents, OffersTheComponentsOfTheChosenGroupByName)
{
    EXPECT_FALSE(loaded()->showsComponentPicker());
    selection->chooseGroup("back");
    EXPECT_TRUE(selection->showsComponentPicker());
    EXPECT_TRUE(selection->isComponentPickerEnabled());
    EXPECT_EQ(selection->componentChoices(), (Choices{noComponent, {"api", "API"}, {"cron", "Cron"}}));
    selection->chooseGroup("");
    EXPECT_FALSE(selection->showsComponentPicker());
    EXPECT_EQ(selection->componentChoices(), Choices{noComponent});
}

TEST_F(SelectionOfComponents, DisablesTheComponentsWhileTheyLoadAndWhereThereAreNone)
{
    loaded()->chooseGroup("empty");
    EXPECT_FALSE(selection->isComponentPickerEnabled());
    selection->chooseGroup("back");
    selection->load();
    EXPECT_FALSE(selection->isComponentPickerEnabled());
    run();
    EXPECT_TRUE(selection->isComponentPickerEnabled());
}

TEST_F(SelectionOfComponents, OfAPageWithoutGroupsOffersTheEntirePageOnly)
{
    transport.script(groupsURL, 200, "[]");
    EXPECT_EQ(loaded()->groupChoices(), Choices{entirePage});
}

TEST_F(SelectionOfComponents, WithoutItsGroupsOffersTheEntirePageOnlyAndSaysNothing)
{
    transport.script(groupsURL, 500, "");
    for (const auto failure : {Failure::silent, Failure::told}) {
        EXPECT_EQ(loaded(failure)->groupChoices(), Choices{entirePage});
        EXPECT_EQ(selection->components->size(), 3u);
        EXPECT_FALSE(*selection->isLoadingComponents);
        EXPECT_EQ(alerts, Words{});
    }
}

TEST_F(SelectionOfComponents, WithoutItsComponentsHasNoneAndSaysNothing)
{
    loaded();
    transport.script(componentsURL, 500, "");
    selection->load();
    run();
    EXPECT_EQ(selection->groupChoices(), Choices{entirePage});
    EXPECT_TRUE(selection->components->empty());
    EXPECT_TRUE(selection->componentGroups->empty());
    EXPECT_FALSE(*selection->isLoadingComponents);
    EXPECT_EQ(alerts, Words{});
}

TEST_F(SelectionOfComponents, WithoutItsComponentsSaysSoWhereThatIsToBeTold)
{
    transport.script(componentsURL, 500, "");
    loaded(Failure::told);
    EXPECT_EQ(alerts, Words{"Could not load components: Server returned HTTP status code 500."});
    EXPECT_EQ(selection->groupChoices(), Choices{entirePage});
}

TEST_F(SelectionOfComponents, WithoutItsComponentsDoesNotWaitForTheGroups)
{
    transport.script(componentsURL, 500, "");
    transport.forget(groupsURL);
    EXPECT_FALSE(*loaded()->isLoadingComponents);
    transport.answer(HttpResponse{200, groupsBody});
    run();
    EXPECT_TRUE(selection->componentGroups->empty());
}

TEST_F(SelectionOfComponents, FetchesTheMonitorsOfAChosenComponentAndOffersThemAsTheyCome)
{
    loaded()->chooseGroup("back");
    selection->chooseComponent("api");
    EXPECT_TRUE(*selection->isLoadingMonitors);
    EXPECT_FALSE(selection->showsMonitorPicker());
    run();
    EXPECT_FALSE(*selection->isLoadingMonitors);
    EXPECT_TRUE(selection->showsMonitorPicker());
    EXPECT_EQ(selection->monitorChoices(), (Choices{{"", "Any"}, {"m2", "Ping"}, {"m1", "HTTP"}}));
}

TEST_F(SelectionOfComponents, OfAComponentWithoutMonitorsOffersNone)
{
    loaded();
    choose("back", "cron");
    EXPECT_FALSE(*selection->isLoadingMonitors);
    EXPECT_FALSE(selection->showsMonitorPicker());
}

TEST_F(SelectionOfComponents, ForgetsTheMonitorWithTheComponentAndBothWithTheGroup)
{
    loaded();
    choose("back", "api");
    selection->chooseMonitor("m1");
    selection->chooseComponent("cron");
    EXPECT_EQ(*selection->selectedMonitorID, "");
    EXPECT_EQ(monitorIds(), "");
    run();
    choose("back", "api");
    selection->chooseMonitor("m1");
    selection->chooseGroup("");
    EXPECT_EQ(*selection->selectedComponentID, "");
    EXPECT_EQ(*selection->selectedMonitorID, "");
    EXPECT_EQ(monitorIds(), "");
}

TEST_F(SelectionOfComponents, ChosenAgainStaysAsItIsAndFetchesNothing)
{
    loaded();
    choose("back", "api");
    selection->chooseMonitor("m1");
    const auto before = transport.requests.size();
    choose("back", "api");
    EXPECT_EQ(*selection->selectedMonitorID, "m1");
    EXPECT_EQ(transport.requests.size(), before);
}

TEST_F(SelectionOfComponents, TakenBackFetchesNothing)
{
    loaded();
    choose("back", "api");
    const auto before = transport.requests.size();
    choose("back", "");
    EXPECT_FALSE(*selection->isLoadingMonitors);
    EXPECT_EQ(transport.requests.size(), before);
}

TEST_F(SelectionOfComponents, WhoseMonitorsCannotBeFetchedSaysSoAndGoesOnWithout)
{
    transport.script(apiMonitorsURL, 500, "");
    loaded();
    choose("back", "api");
    EXPECT_EQ(alerts, Words{"Could not load monitors for this component: Server returned HTTP status code 500."});
    EXPECT_FALSE(*selection->isLoadingMonitors);
    EXPECT_FALSE(selection->showsMonitorPicker());
    EXPECT_EQ(*selection->selectedComponentID, "api");
}

TEST_F(SelectionOfComponents, TakesMonitorsThatComeLateAlsoAfterTheUserMovedOn)
{
    transport.forget(apiMonitorsURL);
    transport.forget(cronMonitorsURL);
    loaded();
    choose("back", "api");
    choose("back", "cron");
    answerMonitor("of api");
    EXPECT_EQ(monitorIds(), "of api ");
    answerMonitor("of cron");
    EXPECT_EQ(monitorIds(), "of cron ");
}

TEST_F(SelectionOfComponents, TakesTheChoiceOfAMonitorBackWhereAListLandsThatLacksIt)
{
    transport.forget(apiMonitorsURL);
    transport.forget(cronMonitorsURL);
    loaded();
    choose("back", "api");
    choose("back", "cron");
    answerMonitor("of api");
    selection->chooseMonitor("of api");
    EXPECT_EQ(*selection->selectedMonitorID, "of api");
    answerMonitor("of cron");
    EXPECT_EQ(*selection->selectedMonitorID, "");
    EXPECT_EQ(selection->monitorChoices(), (Choices{{"", "Any"}, {"of cron", "n"}}));
}

TEST_F(SelectionOfComponents, KeepsTheChosenMonitorWhereAListLandsThatHasIt)
{
    transport.forget(apiMonitorsURL);
    transport.forget(cronMonitorsURL);
    loaded();
    choose("back", "api");
    choose("back", "cron");
    answerMonitor("shared");
    selection->chooseMonitor("shared");
    answerMonitor("shared");
    EXPECT_EQ(*selection->selectedMonitorID, "shared");
}

TEST_F(SelectionOfComponents, WithoutAComponentOffersNoMonitorAndHasNoneChosen)
{
    transport.forget(apiMonitorsURL);
    loaded();
    choose("back", "api");
    choose("", "");
    answerMonitor("late");
    EXPECT_EQ(monitorIds(), "late ");
    EXPECT_FALSE(selection->showsMonitorPicker());
    selection->chooseMonitor("late");
    EXPECT_EQ(*selection->selectedMonitorID, "");
}

TEST_F(SelectionOfComponents, HasNoMonitorChosenThatIsNotOffered)
{
    loaded();
    choose("back", "api");
    selection->chooseMonitor("m1");
    selection->chooseMonitor("of another component");
    EXPECT_EQ(*selection->selectedMonitorID, "m1");
    selection->chooseMonitor("");
    EXPECT_EQ(*selection->selectedMonitorID, "");
}

TEST_F(SelectionOfComponents, ThatIsGoneStillEndsItsRequests)
{
    transport.forget(apiMonitorsURL);
    transport.forget(componentsURL);
    loaded();
    choose("back", "api");
    const std::weak_ptr<ComponentSelection> held = selection;
    selection.reset();
    transport.answer(HttpResponse{200, componentsBody});
    answerMonitor("late");
    EXPECT_TRUE(held.expired());
}

}  // namespace

}  // namespace larkspan::presentation
