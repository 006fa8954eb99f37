#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/AppStateManager.h"
#include "fakes/PolledAccount.h"

namespace larkspan::core {

namespace {

using namespace std::chrono_literals;
using fakes::PolledAccount;
using platform::MenuRow;
using platform::StatusItem;

class StatusItemOfTheAccount : public testing::Test, public PolledAccount {
protected:
    void setUpItem()
    {
        rules = std::make_shared<MainWindowLifecycleDelegate>(windows, statusItem, main);
        state->setupStatusItem(rules);
    }

    /// Chooses the row with this title, as the user.
    void choose(const std::string& title)
    {
        const auto row = std::ranges::find(statusItem.rows, title, &MenuRow::title);
        ASSERT_NE(row, statusItem.rows.end()) << title;
        statusItem.choose(*row);
        run();
    }

    std::shared_ptr<MainWindowLifecycleDelegate> rules;
};

TEST_F(StatusItemOfTheAccount, IsNotThereBeforeItIsSetUpAndARebuildDoesNothingThen)
{
    state->rebuildMenu();
    EXPECT_EQ(statusItem.rebuilds, 0);
    EXPECT_FALSE(statusItem.choose);
    EXPECT_FALSE(state->updaterController());
}

TEST_F(StatusItemOfTheAccount, SetUpShowsAFirstMenuAtOnce)
{
    setUpItem();
    EXPECT_EQ(statusItem.rebuilds, 1);
    EXPECT_EQ(statusItem.button,
        (StatusItem::Button{.symbolName = "questionmark.circle",
            .accessibilityDescription = "Status unknown",
            .toolTip = "Status unknown"}));
    EXPECT_EQ(statusItem.titles(),
        (std::vector<std::string>{"Unknown", "-", "No Status Pages", "-", "Refresh", "Open Dashboard",
            "Check for Updates\u2026", "-", "Quit"}));
}

/// A place for the rows without a button: the window's menu, where there is no panel.
class ItemWithoutAButton final : public platform::StatusItem {
public:
    bool isShown() const override { return false; }
    void onShownChanged(std::function<void()>) override {}
    void show(std::function<void(const MenuRow&)>) override {}
    void setButton(const Button&) override {}
    void setMenu(const std::vector<MenuRow>& newRows) override { rows = newRows; }

    std::vector<MenuRow> rows;
};

TEST_F(StatusItemOfTheAccount, IsBuiltAlsoWhereItHasNoButton)
{
    ItemWithoutAButton item;
    const auto account = AppStateManager::make(
        {main, timers, clock, notifications, network, item, updates, windows, credentials, api});
    account->setupStatusItem({});
    EXPECT_EQ(item.rows.size(), 9u);
    EXPECT_EQ(item.rows.front().title, "Unknown");
    EXPECT_EQ(item.rows.back().title, "Quit");
}

TEST_F(StatusItemOfTheAccount, FollowsTheAccount)
{
    setUpItem();
    servePages({"Acme"}, {{"Acme", "operational"}});
    serveIncidents({incident("i1", "Login errors")});
    refresh();
    EXPECT_EQ(statusItem.button,
        (StatusItem::Button{.symbolName = "xmark.circle.fill",
            .accessibilityDescription = "Some systems down",
            .toolTip = "Some systems down • Updated just now"}));
    EXPECT_EQ(statusItem.titles(),
        (std::vector<std::string>{"Down", "Updated just now", "-", "Acme", "-", "Active Incidents", "Login errors", "-",
            "Refresh", "Open Dashboard", "Check for Updates\u2026", "-", "Quit"}));
}

TEST_F(StatusItemOfTheAccount, IsRebuiltOncePerPublishedChangeAndSeesTheNewValue)
{
    setUpItem();
    state->isReachable = false;
    EXPECT_EQ(statusItem.rebuilds, 1) << "before the change has landed";
    run();
    EXPECT_EQ(statusItem.rebuilds, 2);
    EXPECT_EQ(statusItem.titles()[1], "Network Offline");

    state->isLoading = true;
    state->isLoading = false;
    run();
    EXPECT_EQ(statusItem.rebuilds, 4);
}

TEST_F(StatusItemOfTheAccount, KeepsItsRelativeTimeHonestEveryTenSeconds)
{
    setUpItem();
    servePages({"Acme"}, {{"Acme", "operational"}});
    refresh();
    clock.time += 20s;
    timers.advance(9'999ms);
    run();
    EXPECT_EQ(statusItem.titles()[1], "Updated just now");
    timers.advance(1ms);
    run();
    EXPECT_EQ(statusItem.titles()[1], "Updated 20s ago");
}

TEST_F(StatusItemOfTheAccount, DoesNotKeepTheAccountAlive)
{
    setUpItem();
    const std::weak_ptr<AppStateManager> weak = state;
    state->isReachable = false;
    state.reset();
    EXPECT_TRUE(weak.expired());
    run();
    EXPECT_EQ(statusItem.rebuilds, 1);
    statusItem.choose({.kind = MenuRow::Kind::command, .action = MenuRow::Action::refreshNow});
    run();
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(StatusItemOfTheAccount, RefreshStartsACycleAndIsWorthAPromptOfTheKeyring)
{
    setUpItem();
    EXPECT_EQ(credentials.promptsAllowed, 0);
    choose("Refresh");
    EXPECT_EQ(transport.requests.size(), 1u);
    EXPECT_EQ(credentials.promptsAllowed, 1);
}

TEST_F(StatusItemOfTheAccount, OpenDashboardBringsTheMinimisedWindowBack)
{
    setUpItem();
    const auto window = windows.addWindow();
    choose("Open Dashboard");
    EXPECT_EQ(windows.activations, 1);
    EXPECT_EQ(window->calls, (std::vector<std::string>{"deminiaturize", "makeKeyAndOrderFront"}));
}

TEST_F(StatusItemOfTheAccount, AClickOnAPageRowPostsTheNotificationFirstAndBringsTheDashboardForwardAfterwards)
{
    setUpItem();
    servePages({"Acme"}, {{"Acme", "operational"}});
    refresh();
    std::vector<std::string> posted;
    const auto subscription
        = state->inProcessNotifications().observe(InProcessNotifications::openStatusPage, [&](const std::string& id) {
              posted.push_back(id + " after " + std::to_string(windows.activations) + " activations");
          });
    choose("Acme");
    EXPECT_EQ(posted, (std::vector<std::string>{"Acme after 0 activations"}));
    EXPECT_EQ(windows.activations, 1);
}

TEST_F(StatusItemOfTheAccount, OpenIncidentPostsItsOwnNotificationAndBringsTheDashboardForward)
{
    setUpItem();
    std::vector<std::string> pages;
    std::vector<std::string> incidents;
    auto& center = state->inProcessNotifications();
    const auto ofPages = center.observe("openStatusPage", [&](const std::string& id) { pages.push_back(id); });
    const auto ofIncidents = center.observe("openIncident", [&](const std::string& id) { incidents.push_back(id); });
    state->openIncident("i1");
    EXPECT_TRUE(pages.empty());
    EXPECT_EQ(incidents, (std::vector<std::string>{"i1"}));
    EXPECT_EQ(windows.activations, 1);
}

TEST_F(StatusItemOfTheAccount, NoRowOpensAnIncident)
{
    setUpItem();
    servePages({"Acme"}, {});
    serveIncidents({incident("i1", "Login errors")});
    refresh();
    for (const auto& row : statusItem.rows) EXPECT_NE(row.action, MenuRow::Action::openIncident);
}

TEST_F(StatusItemOfTheAccount, CheckForUpdatesAsksTheUpdaterAndBringsTheDashboardThatTellsOfItForward)
{
    setUpItem();
    choose("Check for Updates\u2026");
    EXPECT_EQ(updater.pending.size(), 1u);
    EXPECT_TRUE(*state->updaterController()->isShowing);
    EXPECT_EQ(windows.activations, 1);
}

TEST_F(StatusItemOfTheAccount, CheckForUpdatesBeforeTheItemIsSetUpDoesNothing)
{
    state->checkForUpdates();
    EXPECT_TRUE(updater.pending.empty());
    EXPECT_EQ(windows.activations, 0);
}

TEST_F(StatusItemOfTheAccount, QuitAsksTheDesktopToTerminate)
{
    setUpItem();
    choose("Quit");
    EXPECT_EQ(windows.terminations, 1);
}

TEST_F(StatusItemOfTheAccount, AnInformationRowDoesNothing)
{
    setUpItem();
    choose("Unknown");
    EXPECT_TRUE(transport.requests.empty());
    EXPECT_EQ(windows.activations + windows.terminations, 0);
}

}  // namespace

}  // namespace larkspan::core
