#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/Refusal.h"
#include "incidents/FormOfAnIncident.h"

namespace larkspan::incidents {

namespace {

using fakes::Refusal;
using Words = std::vector<std::string>;

TEST_F(FormOfAnIncident, OpensEmptyForTheEntirePageWithSubscribersNotified)
{
    opened();
    EXPECT_EQ(*form->title, "");
    EXPECT_EQ(*form->message, "");
    EXPECT_TRUE(*form->notifySubscribers);
    EXPECT_EQ(*form->selection->selectedComponentGroupID, "");
    EXPECT_FALSE(form->isSaveEnabled());
    EXPECT_TRUE(form->isCloseEnabled());
    EXPECT_EQ(form->selection->hint(), "Choose a group only when the incident is limited to it.");
    form->selection->chooseGroup("back");
    EXPECT_EQ(form->selection->hint(), "Then choose the affected component within that group.");
}

TEST_F(FormOfAnIncident, NamesTheMonitorThatIsNotYetChosen)
{
    opened();
    choose("back", "api");
    EXPECT_EQ(form->selection->monitorChoices().at(0), (presentation::Choice{"", "Select a monitor"}));
    EXPECT_EQ(form->selection->monitorChoices().size(), 3u);
}

struct TitleRow {
    std::string title;
    bool isEnabled;
};

class TitleOfAnIncident : public FormOfAnIncident, public testing::WithParamInterface<TitleRow> {};

TEST_P(TitleOfAnIncident, IsNeededAndBlanksAreNone)
{
    titled(GetParam().title);
    EXPECT_EQ(form->isSaveEnabled(), GetParam().isEnabled);
    EXPECT_EQ(saved() != "nothing", GetParam().isEnabled);
}

INSTANTIATE_TEST_SUITE_P(EachKind, TitleOfAnIncident,
    testing::Values(TitleRow{"", false}, TitleRow{"   ", false}, TitleRow{" \t\u00a0", false}, TitleRow{"\n\n", true},
        TitleRow{" a ", true}));

TEST_F(FormOfAnIncident, WithAGroupButNoComponentCannotBeSaved)
{
    titled("Down");
    EXPECT_TRUE(form->isSaveEnabled());
    form->selection->chooseGroup("back");
    EXPECT_FALSE(form->isSelectionComplete());
    EXPECT_FALSE(form->isSaveEnabled());
}

TEST_F(FormOfAnIncident, WithAComponentWhoseMonitorsLoadCannotBeSaved)
{
    titled("Down")->selection->chooseGroup("back");
    form->selection->chooseComponent("cron");
    EXPECT_FALSE(form->isSaveEnabled());
    run();
    EXPECT_TRUE(form->isSaveEnabled()) << "it has no monitors";
}

TEST_F(FormOfAnIncident, WithAComponentThatHasMonitorsNeedsOneOfThem)
{
    titled("Down");
    choose("back", "api");
    EXPECT_FALSE(form->isSaveEnabled());
    form->selection->chooseMonitor("m1");
    EXPECT_TRUE(form->isSaveEnabled());
    form->selection->chooseMonitor("");
    EXPECT_FALSE(form->isSaveEnabled());
}

TEST_F(FormOfAnIncident, WhoseMonitorsCannotBeFetchedSaysSoAndCanBeSavedWithout)
{
    transport.script(apiMonitorsURL, 500, "");
    titled("Down");
    choose("back", "api");
    EXPECT_EQ(form->action->alert.words(),
        "Could not load monitors for this component: Server returned HTTP status code 500.");
    EXPECT_TRUE(form->isSaveEnabled());
    form->action->alert.dismiss();
    EXPECT_EQ(saved(), R"({"title":"Down","status_page_id":"p","component_id":"api","notify_subscribers":true})");
}

TEST_F(FormOfAnIncident, WithoutComponentsSaysNothingAndDoesForTheEntirePage)
{
    transport.script(componentsURL, 500, "");
    titled("Down");
    EXPECT_EQ(form->action->alert.words(), "");
    EXPECT_EQ(form->selection->groupChoices().size(), 1u);
    EXPECT_TRUE(form->isSaveEnabled());
}

TEST_F(FormOfAnIncident, SendsTitleAndMessageAsTypedAndWhatIsEmptyNotAtAll)
{
    titled("  a  ");
    EXPECT_EQ(saved(), R"({"title":"  a  ","status_page_id":"p","notify_subscribers":true})");
    titled("a")->message = " \n";
    form->notifySubscribers = false;
    EXPECT_EQ(saved(), R"({"title":"a","message":" \n","status_page_id":"p","notify_subscribers":false})");
}

TEST_F(FormOfAnIncident, SendsTheComponentAndTheMonitorButNotTheGroup)
{
    titled("Down");
    choose("back", "api");
    form->selection->chooseMonitor("m1");
    EXPECT_EQ(saved(),
        R"({"title":"Down","status_page_id":"p","component_id":"api","monitor_id":"m1","notify_subscribers":true})");
}

TEST_F(FormOfAnIncident, IsNotSentWithAMonitorOfTheComponentThatWasChosenBefore)
{
    const platform::HttpResponse ofAPI{200, apiMonitorsBody};
    const platform::HttpResponse ofCron{200, R"({"monitors": [{"id": "m9", "name": "Cron", "component_id": "cron"}]})"};
    transport.forget(apiMonitorsURL);
    transport.forget(cronMonitorsURL);
    titled("Down");
    choose("back", "api");
    choose("back", "cron");
    transport.answer(ofAPI);
    run();
    form->selection->chooseMonitor("m1");
    transport.answer(ofCron);
    run();
    EXPECT_FALSE(form->isSaveEnabled()) << "one of its own is to be chosen";
    form->selection->chooseMonitor("m9");
    EXPECT_EQ(saved(),
        R"({"title":"Down","status_page_id":"p","component_id":"cron","monitor_id":"m9","notify_subscribers":true})");
}

class RefusedIncident : public FormOfAnIncident, public testing::WithParamInterface<fakes::Refusal> {};

TEST_P(RefusedIncident, IsAnAlertOverAFormThatKeepsAllThatWasTypedAndChosen)
{
    titled("Down")->message = "We look";
    choose("back", "api");
    form->selection->chooseMonitor("m2");
    form->notifySubscribers = false;
    transport.script(incidentsURL, GetParam().answer);
    form->save();
    run();
    EXPECT_EQ(form->action->alert.words(), GetParam().alert);
    EXPECT_FALSE(*form->action->isInProgress);
    EXPECT_EQ(transport.requests.size(), 1u) << "nothing is tried again";
    EXPECT_EQ(effects, Words{});
    EXPECT_EQ(saved(),
        R"({"title":"Down","message":"We look","status_page_id":"p","component_id":"api","monitor_id":"m2",)"
        R"("notify_subscribers":false})");
    EXPECT_EQ(form->action->alert.words(), "");
}

INSTANTIATE_TEST_SUITE_P(EachAnswer, RefusedIncident, testing::ValuesIn(fakes::refusals()));

TEST_F(FormOfAnIncident, LeftByEscapeWithNothingTypedJustCloses)
{
    titled("  ")->requestClose();
    EXPECT_EQ(effects, Words{"dismiss"});
}

TEST_F(FormOfAnIncident, TellsItsObserversOfItsTextItsSelectionAndItsRequests)
{
    opened();
    int changes = 0;
    const auto subscriptions = form->observe([&changes] { ++changes; });
    form->title = "Down";
    EXPECT_EQ(changes, 1);
    form->selection->isLoadingMonitors = true;
    EXPECT_EQ(changes, 2);
    form->action->alert.dismiss();
    EXPECT_EQ(changes, 3);
}

}  // namespace

}  // namespace larkspan::incidents
