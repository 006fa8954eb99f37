#include <gtest/gtest.h>

#include <memory>

#include "fakes/Account.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "workspace/Dashboard.h"

namespace larkspan::workspace {

namespace {

using Tab = StatusPageDetailView::Tab;

/// The dashboard of an account with pages "a" and "b".
class PageOfTheDashboard : public testing::Test, public fakes::Account {
protected:
    PageOfTheDashboard()
    {
        servePages({"a", "b"}, {});
        refresh();
    }

    const StatusPageDetailView* opened() const { return dashboard->openedPage->get(); }

    api::APIKeyStore keys{client, credentials};
    fakes::FakeLocaleText locale;
    fakes::FakeLinkOpener links;
    std::unique_ptr<Dashboard> dashboard = std::make_unique<Dashboard>(
        Dashboard::Ports{main, timers, clock, credentials, keys, state, locale, links, api});
};

TEST_F(PageOfTheDashboard, OpensFromItsRowAndClosesOnTheWayBack)
{
    EXPECT_EQ(opened(), nullptr);
    dashboard->openPage("b");
    ASSERT_NE(opened(), nullptr);
    EXPECT_EQ(opened()->page->name, "b");
    EXPECT_EQ(*dashboard->selectedPageId, "b");
    dashboard->closePage();
    EXPECT_EQ(opened(), nullptr);
    EXPECT_EQ(*dashboard->selectedPageId, std::nullopt);
}

TEST_F(PageOfTheDashboard, OpensFromTheMenu)
{
    state->openStatusPage("b");
    ASSERT_NE(opened(), nullptr);
    EXPECT_EQ(opened()->page->id, "b");
}

TEST_F(PageOfTheDashboard, AskedForFromTheMenuDoesNotTakeThePlaceOfOneInWhichTextIsTyped)
{
    dashboard->openPage("a");
    auto& page = **dashboard->openedPage;
    for (const auto tab : {Tab::incidents, Tab::maintenances}) {
        page.select(tab);
        EXPECT_FALSE(page.hasUnsavedText());
        if (tab == Tab::incidents) {
            page.incidents()->openCreateIncident();
            page.incidents()->form()->title = "Mail is down";
        } else {
            page.maintenances()->openCreateMaintenance();
            page.maintenances()->form()->title = "New certificates";
        }
        EXPECT_TRUE(page.hasUnsavedText());
        state->openStatusPage("b");
        EXPECT_EQ(opened()->page->id, "a");
    }
    page.select(Tab::overview);
    state->openStatusPage("b");
    EXPECT_EQ(opened()->page->id, "b");
}

TEST_F(PageOfTheDashboard, AskedForFromTheMenuWhileAnotherIsOpenIsAViewOfItsOwnWithTheOverviewSelected)
{
    dashboard->openPage("a");
    (*dashboard->openedPage)->select(Tab::incidents);
    state->openStatusPage("b");
    ASSERT_NE(opened(), nullptr);
    EXPECT_EQ(opened()->page->id, "b");
    EXPECT_EQ(*opened()->selectedTab, Tab::overview);
}

TEST_F(PageOfTheDashboard, AskedForAgainWhileItIsOpenStaysAsItIs)
{
    dashboard->openPage("a");
    (*dashboard->openedPage)->select(Tab::incidents);
    const auto* const before = opened();
    state->openStatusPage("a");
    EXPECT_EQ(opened(), before);
    EXPECT_EQ(*opened()->selectedTab, Tab::incidents);
}

TEST_F(PageOfTheDashboard, ThatTheAccountDoesNotHaveOpensNothingAndClosesTheOneThatWasOpen)
{
    dashboard->openPage("a");
    state->openStatusPage("gone");
    EXPECT_EQ(opened(), nullptr);
    EXPECT_EQ(*dashboard->selectedPageId, "gone");
}

TEST_F(PageOfTheDashboard, DoesNotOpenByItselfWhenTheAccountGetsItLater)
{
    state->openStatusPage("c");
    servePages({"a", "b", "c"}, {});
    refresh();
    EXPECT_EQ(opened(), nullptr);
}

TEST_F(PageOfTheDashboard, IsHandedTheNewRecordWithEachCycleAndKeepsItsTab)
{
    dashboard->openPage("a");
    (*dashboard->openedPage)->select(Tab::incidents);
    const auto* const before = opened();
    servePages({"a", "b"}, {{"a", "major-outage"}});
    refresh();
    EXPECT_EQ(opened(), before);
    EXPECT_EQ(opened()->page->status, model::StatusPageStatus::down);
    EXPECT_EQ(*opened()->selectedTab, Tab::incidents);
}

TEST_F(PageOfTheDashboard, ThatIsGoneFromTheAccountCloses)
{
    dashboard->openPage("a");
    servePages({"b"}, {});
    refresh();
    EXPECT_EQ(opened(), nullptr);
    EXPECT_EQ(*dashboard->selectedPageId, std::nullopt);
    servePages({"a", "b"}, {});
    refresh();
    EXPECT_EQ(opened(), nullptr) << "nor does it come back by itself";
}

TEST_F(PageOfTheDashboard, StaysOpenWhenARefreshFails)
{
    dashboard->openPage("a");
    transport.script(pagesURL, 500, "");
    refresh();
    EXPECT_NE(opened(), nullptr);
}

TEST_F(PageOfTheDashboard, ClosesWithTheDeletionOfTheKey)
{
    dashboard->openPage("a");
    state->clearAccountData();
    run();
    EXPECT_EQ(opened(), nullptr);
}

TEST_F(PageOfTheDashboard, OfADashboardThatWentInTheMiddleOfAChangeHarmsNothing)
{
    dashboard->openPage("a");
    state->isLoading = true;
    dashboard.reset();
    run();
}

}  // namespace

}  // namespace larkspan::workspace
