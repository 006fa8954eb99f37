#include "workspace/StatusPageDetailView.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "components/StatusPageComponentsView.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "fakes/PolledAccount.h"
#include "incidents/StatusPageIncidentsView.h"
#include "maintenances/StatusPageMaintenancesView.h"
#include "monitors/StatusPageMonitorsView.h"

namespace larkspan::workspace {

namespace {

using Tab = StatusPageDetailView::Tab;

model::StatusPage acme()
{
    model::StatusPage page;
    page.id = "a";
    page.name = "Acme";
    return page;
}

class OpenedPage : public testing::Test, public fakes::PolledAccount {
protected:
    fakes::FakeLocaleText locale;
    fakes::FakeLinkOpener links;
    StatusPageDetailView view{{main, clock, locale, links, credentials, api, state}, acme()};
};

TEST_F(OpenedPage, StartsWithTheOverview)
{
    EXPECT_EQ(view.selectedTab(), Tab::overview);
    EXPECT_EQ(view.page->name, "Acme");
}

TEST_F(OpenedPage, HasFiveTabsInTheirOrder)
{
    std::vector<std::string> labels;
    for (const auto tab : StatusPageDetailView::tabs) labels.emplace_back(rawValue(tab));
    EXPECT_EQ(labels, (std::vector<std::string>{"Overview", "Incidents", "Monitors", "Components", "Maintenances"}));
    EXPECT_EQ(StatusPageDetailView::pickerLabel, "View");
}

TEST_F(OpenedPage, GoesFromTabToTabAndOverTheEnds)
{
    view.selectPrevious();
    EXPECT_EQ(view.selectedTab(), Tab::maintenances);
    view.selectNext();
    view.selectNext();
    EXPECT_EQ(view.selectedTab(), Tab::incidents);
    view.selectPrevious();
    EXPECT_EQ(view.selectedTab(), Tab::overview);
}

TEST_F(OpenedPage, ChoosingTheSelectedTabChangesNothing)
{
    int changes = 0;
    const auto subscription = view.objectWillChange([&changes] { ++changes; });
    view.select(Tab::overview);
    EXPECT_EQ(changes, 0);
    view.select(Tab::monitors);
    EXPECT_EQ(changes, 1);
}

TEST_F(OpenedPage, MakesTheScreenOfItsMonitorsOnEntryAndDropsItOnLeaving)
{
    EXPECT_EQ(view.monitors(), nullptr);
    view.select(Tab::monitors);
    ASSERT_TRUE(view.monitors());
    EXPECT_TRUE(*view.monitors()->viewModel->isLoading);
    EXPECT_EQ(view.monitors()->viewModel->pageId, "a");
    const std::weak_ptr<monitors::StatusPageMonitorsView> first = view.monitors();
    view.select(Tab::overview);
    EXPECT_EQ(view.monitors(), nullptr);
    EXPECT_TRUE(first.expired());
}

TEST_F(OpenedPage, HasTheScreenOfItsComponentsMadeOnEntryAndDroppedOnLeaving)
{
    EXPECT_EQ(view.components(), nullptr);
    view.select(Tab::components);
    const std::weak_ptr<components::StatusPageComponentsView> first = view.components();
    ASSERT_NE(view.components(), nullptr);
    EXPECT_EQ(view.components()->viewModel->pageId, "a");
    EXPECT_EQ(view.components()->content(), presentation::Content::loading);
    view.select(Tab::components);
    EXPECT_EQ(view.components(), first.lock());
    view.select(Tab::incidents);
    EXPECT_EQ(view.components(), nullptr);
    EXPECT_TRUE(first.expired());
}

TEST_F(OpenedPage, HasTheScreenOfItsMaintenancesWhileTheirTabIsSelected)
{
    EXPECT_EQ(view.maintenances(), nullptr);
    view.select(Tab::maintenances);
    ASSERT_NE(view.maintenances(), nullptr);
    EXPECT_EQ(view.maintenances()->viewModel->pageId, "a");
    EXPECT_TRUE(*view.maintenances()->viewModel->isLoading);
    const auto screen = view.maintenances();
    view.select(Tab::maintenances);
    EXPECT_EQ(view.maintenances(), screen);
    view.select(Tab::incidents);
    EXPECT_EQ(view.maintenances(), nullptr);
    view.select(Tab::maintenances);
    EXPECT_NE(view.maintenances(), screen) << "made anew";
}

TEST_F(OpenedPage, RefreshesTheAccountForItsOverview)
{
    view.refresh();
    run();
    EXPECT_EQ(transport.requests.at(0).url, pagesURL);
}

struct RefreshedTab {
    Tab tab;
    const char* resource;
};

class RefreshOf : public OpenedPage, public testing::WithParamInterface<RefreshedTab> {};

TEST_P(RefreshOf, ATabFetchesWhatItShowsAndNotTheAccount)
{
    view.select(GetParam().tab);
    run();
    transport.requests.clear();
    view.refresh();
    run();
    ASSERT_FALSE(transport.requests.empty());
    for (const auto& request : transport.requests) EXPECT_THAT(request.url, testing::HasSubstr(GetParam().resource));
}

INSTANTIATE_TEST_SUITE_P(EachTab, RefreshOf,
    testing::Values(RefreshedTab{Tab::incidents, "/incidents"}, RefreshedTab{Tab::monitors, "/monitors"},
        RefreshedTab{Tab::components, "/component"}, RefreshedTab{Tab::maintenances, "/maintenances"}));

TEST_F(OpenedPage, RedrawsItsActivityWhenTheAccountPublishesNewLists)
{
    int changes = 0;
    const auto subscriptions = view.observe([&changes] { ++changes; });
    model::Incident incident;
    incident.statusPageId = "a";
    state->incidents = std::vector{incident};
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(view.overview().activity.size(), 1u);
}

TEST_F(OpenedPage, OpensItsPublicURLInTheBrowser)
{
    auto page = acme();
    page.url = model::URL::parse("HTTPS://status.acme.example");
    view.page = page;
    view.openPublicURL();
    EXPECT_EQ(links.opened, std::vector<std::string>{"HTTPS://status.acme.example"});
}

TEST_F(OpenedPage, OpensNothingThatIsNoWebAddress)
{
    view.openPublicURL();
    for (const auto* const address : {"file:///etc/passwd", "javascript:alert(1)", "http:/x", "https", "xhttp://a"}) {
        auto page = acme();
        page.url = model::URL::parse(address);
        view.page = page;
        view.openPublicURL();
    }
    EXPECT_TRUE(links.opened.empty());
}

}  // namespace

}  // namespace larkspan::workspace
