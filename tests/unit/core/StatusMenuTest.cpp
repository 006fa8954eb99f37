#include "core/StatusMenu.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace larkspan::core {

namespace {

using namespace std::chrono_literals;
using model::Incident;
using model::IncidentStatus;
using model::StatusPage;
using model::StatusPageStatus;
using platform::MenuRow;
using Kind = MenuRow::Kind;
using Action = MenuRow::Action;
using Dot = MenuRow::Dot;
using Rows = std::vector<MenuRow>;

const support::Time now{1'800'000'000s};

StatusPage page(const std::string& id, const std::string& name, StatusPageStatus status)
{
    StatusPage made;
    made.id = id;
    made.name = name;
    made.status = status;
    return made;
}

Incident incident(const std::string& title, IncidentStatus status)
{
    Incident made;
    made.title = title;
    made.status = status;
    return made;
}

MenuRow information(const std::string& title)
{
    return {.kind = Kind::information, .title = title};
}

MenuRow command(const std::string& title, Action action, const std::string& key = {})
{
    return {.kind = Kind::command, .title = title, .action = action, .keyEquivalent = key};
}

const MenuRow separator{};

class StatusMenu : public testing::Test {
protected:
    StatusMenuState state() const
    {
        return {.statusPages = pages,
            .incidents = incidents,
            .overallStatus = overallStatus,
            .lastRefresh = lastRefresh,
            .isReachable = isReachable,
            .hasRefreshError = hasRefreshError,
            .now = now};
    }

    /// The titles between the separator below the pages and the commands.
    std::vector<std::string> incidentTitles() const
    {
        std::vector<std::string> titles;
        for (const auto& row : menuRows(state())) titles.push_back(row.kind == Kind::separator ? "-" : row.title);
        titles.erase(titles.begin(), titles.begin() + 4);
        titles.erase(titles.end() - 5, titles.end());
        return titles;
    }

    std::vector<StatusPage> pages;
    std::vector<Incident> incidents;
    OverallStatus overallStatus = OverallStatus::unknown;
    std::optional<support::Time> lastRefresh;
    bool isReachable = true;
    bool hasRefreshError = false;
};

TEST_F(StatusMenu, HasAllItsRowsInTheirOrder)
{
    overallStatus = OverallStatus::down;
    lastRefresh = now - 12s;
    pages = {page("p1", "Acme Cloud", StatusPageStatus::operational), page("p2", "Beta", StatusPageStatus::down)};
    incidents = {incident("Login errors", IncidentStatus::active)};
    EXPECT_EQ(menuRows(state()),
        (Rows{
            information("Down"),
            information("Updated 12s ago"),
            separator,
            {.kind = Kind::command,
                .title = "Acme Cloud",
                .action = Action::openStatusPage,
                .representedObject = "p1",
                .dot = Dot::green,
                .toolTip = "Operational"},
            {.kind = Kind::command,
                .title = "Beta",
                .action = Action::openStatusPage,
                .representedObject = "p2",
                .dot = Dot::red,
                .toolTip = "Down"},
            separator,
            information("Active Incidents"),
            information("Login errors"),
            separator,
            command("Refresh", Action::refreshNow, "r"),
            command("Open Dashboard", Action::openDashboard, "d"),
            command("Check for Updates\u2026", Action::checkForUpdates),
            separator,
            command("Quit", Action::quitApp, "q"),
        }));
}

TEST_F(StatusMenu, WithNoKeyAndNoDataSaysThatTheRefreshFailed)
{
    overallStatus = OverallStatus::stale;
    hasRefreshError = true;
    EXPECT_EQ(menuRows(state()),
        (Rows{
            information("Stale"),
            information("Refresh Failed"),
            separator,
            information("No Status Pages"),
            separator,
            command("Refresh", Action::refreshNow, "r"),
            command("Open Dashboard", Action::openDashboard, "d"),
            command("Check for Updates\u2026", Action::checkForUpdates),
            separator,
            command("Quit", Action::quitApp, "q"),
        }));
}

TEST_F(StatusMenu, BeforeTheFirstCycleBeginsWithUnknownAndNeitherAnAgeNorAFailure)
{
    const auto rows = menuRows(state());
    EXPECT_EQ(rows[0], information("Unknown"));
    EXPECT_EQ(rows[1], separator);
}

TEST_F(StatusMenu, OfflineAndAFailedRefreshShowsNetworkOfflineAlone)
{
    isReachable = false;
    hasRefreshError = true;
    const auto rows = menuRows(state());
    EXPECT_EQ(rows[1], information("Network Offline"));
    EXPECT_EQ(rows[2], separator);
}

TEST_F(StatusMenu, OfflineWithoutAFailureShowsNetworkOfflineToo)
{
    isReachable = false;
    EXPECT_EQ(menuRows(state())[1], information("Network Offline"));
}

struct RawValueRow {
    OverallStatus status;
    std::string title;
};

class StatusMenuFirstRow : public StatusMenu, public testing::WithParamInterface<RawValueRow> {};

TEST_P(StatusMenuFirstRow, IsTheRawValueOfTheStatus)
{
    overallStatus = GetParam().status;
    EXPECT_EQ(menuRows(state())[0], information(GetParam().title));
}

INSTANTIATE_TEST_SUITE_P(EachStatus, StatusMenuFirstRow,
    testing::Values(RawValueRow{OverallStatus::operational, "Operational"},
        RawValueRow{OverallStatus::degraded, "Degraded"}, RawValueRow{OverallStatus::down, "Down"},
        RawValueRow{OverallStatus::maintenance, "Maintenance"}, RawValueRow{OverallStatus::stale, "Stale"},
        RawValueRow{OverallStatus::unknown, "Unknown"}));

struct DotRow {
    StatusPageStatus status;
    Dot dot;
    std::string toolTip;
};

class StatusMenuDot : public StatusMenu, public testing::WithParamInterface<DotRow> {};

TEST_P(StatusMenuDot, HasTheColourAndTheLabelOfThePagesStatus)
{
    pages = {page("p", "P", GetParam().status)};
    const auto row = menuRows(state())[2];
    EXPECT_EQ(row.dot, GetParam().dot);
    EXPECT_EQ(row.toolTip, GetParam().toolTip);
    EXPECT_EQ(row.keyEquivalent, "");
}

INSTANTIATE_TEST_SUITE_P(EachStatus, StatusMenuDot,
    testing::Values(DotRow{StatusPageStatus::operational, Dot::green, "Operational"},
        DotRow{StatusPageStatus::degraded, Dot::orange, "Degraded"}, DotRow{StatusPageStatus::down, Dot::red, "Down"},
        DotRow{StatusPageStatus::maintenance, Dot::blue, "Maintenance"},
        DotRow{StatusPageStatus::unknown, Dot::gray, "Unknown"}));

TEST_F(StatusMenu, ListsAThousandPagesAllInTheirOrder)
{
    for (int i = 0; i < 1'000; ++i) pages.push_back(page(std::to_string(i), "Page", StatusPageStatus::operational));
    const auto rows = menuRows(state());
    for (std::size_t i = 0; i < 1'000; ++i) ASSERT_EQ(rows[2 + i].representedObject, std::to_string(i));
    EXPECT_EQ(rows[1'002], separator);
}

TEST_F(StatusMenu, OfALongNameShowsTwoHundredCharacters)
{
    std::string name;
    for (int count = 0; count < 300; ++count) name += "é";
    const std::string shown = name.substr(0, 400) + "…";
    pages = {page("p", name, StatusPageStatus::operational)};
    EXPECT_EQ(menuRows(state())[2].title, shown);

    pages[0].name = name.substr(0, 400);
    incidents = {incident(name, IncidentStatus::active)};
    EXPECT_EQ(menuRows(state())[2].title, name.substr(0, 400));
    EXPECT_EQ(incidentTitles()[1], shown);
}

TEST_F(StatusMenu, OfSixActiveIncidentsShowsFiveAndTheSixthOnceOneOfThemIsResolved)
{
    for (const auto* const title : {"1", "2", "3", "4", "5", "6"}) {
        incidents.push_back(incident(title, IncidentStatus::active));
    }
    EXPECT_EQ(incidentTitles(), (std::vector<std::string>{"Active Incidents", "1", "2", "3", "4", "5", "-"}));

    incidents[1].status = IncidentStatus::resolved;
    EXPECT_EQ(incidentTitles(), (std::vector<std::string>{"Active Incidents", "1", "3", "4", "5", "6", "-"}));
}

TEST_F(StatusMenu, NeverShowsAnIncidentThatIsResolvedOrCompleted)
{
    incidents = {incident("r", IncidentStatus::resolved), incident("a", IncidentStatus::acknowledged),
        incident("c", IncidentStatus::completed)};
    EXPECT_EQ(incidentTitles(), (std::vector<std::string>{"Active Incidents", "a", "-"}));
}

TEST_F(StatusMenu, LeavesTheBlockOfIncidentsOutWhenNoneIsActive)
{
    incidents = {incident("r", IncidentStatus::resolved)};
    EXPECT_TRUE(incidentTitles().empty());
}

TEST_F(StatusMenu, IncidentRowsAreDisabledAndHaveNoAction)
{
    incidents = {incident("a", IncidentStatus::active)};
    EXPECT_EQ(menuRows(state())[5], information("a"));
}

struct TooltipRow {
    OverallStatus status;
    bool isRefreshed;
    bool isReachable;
    bool hasRefreshError;
    std::string text;
};

class StatusTooltip : public StatusMenu, public testing::WithParamInterface<TooltipRow> {};

TEST_P(StatusTooltip, JoinsWhatIsKnown)
{
    const auto& row = GetParam();
    overallStatus = row.status;
    if (row.isRefreshed) lastRefresh = now - 61s;
    isReachable = row.isReachable;
    hasRefreshError = row.hasRefreshError;
    EXPECT_EQ(statusTooltip(state()), row.text);
}

INSTANTIATE_TEST_SUITE_P(EachCombination, StatusTooltip,
    testing::Values(TooltipRow{OverallStatus::unknown, false, true, false, "Status unknown"},
        TooltipRow{OverallStatus::operational, true, true, false, "All systems operational • Updated 1m ago"},
        TooltipRow{OverallStatus::stale, false, true, true, "Status stale, refresh failed • Refresh failed"},
        TooltipRow{OverallStatus::stale, false, false, true, "Status stale, refresh failed • Network offline"},
        TooltipRow{
            OverallStatus::stale, true, false, true, "Status stale, refresh failed • Updated 1m ago • Network offline"},
        TooltipRow{OverallStatus::down, true, true, true, "Some systems down • Updated 1m ago • Refresh failed"},
        TooltipRow{OverallStatus::operational, true, false, false,
            "All systems operational • Updated 1m ago • Network offline"}));

}  // namespace

}  // namespace larkspan::core
