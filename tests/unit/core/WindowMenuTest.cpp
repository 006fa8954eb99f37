#include "core/WindowMenu.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/StatusMenu.h"

namespace larkspan::core {

namespace {

using namespace std::chrono_literals;
using Look = WindowMenu::Row::Look;
using Rows = std::vector<WindowMenu::Row>;
using Titles = std::vector<std::string>;

class MenuOfTheWindow : public testing::Test {
protected:
    void addPage(const std::string& name, model::StatusPageStatus status)
    {
        pages.emplace_back();
        pages.back().id = name;
        pages.back().name = name;
        pages.back().status = status;
    }

    void addIncident(const std::string& title)
    {
        incidents.emplace_back();
        incidents.back().title = title;
        incidents.back().status = model::IncidentStatus::active;
    }

    std::vector<platform::MenuRow> panelRows() const
    {
        return menuRows({.statusPages = pages,
            .incidents = incidents,
            .overallStatus = OverallStatus::down,
            .lastRefresh = lastRefresh,
            .now = support::Time{1'800'000'000s}});
    }

    WindowMenu menu() const { return WindowMenu::of(panelRows(), "xmark.circle.fill"); }

    static Titles titles(const Rows& rows)
    {
        Titles found;
        for (const auto& [row, look, symbol, ending] : rows) {
            found.push_back(row.kind == platform::MenuRow::Kind::separator ? "-" : row.title);
        }
        return found;
    }

    static Rows all(const WindowMenu& menu)
    {
        Rows found;
        for (const auto* part : {&menu.summary, &menu.pages, &menu.incidents, &menu.commands}) {
            found.insert(found.end(), part->begin(), part->end());
        }
        return found;
    }

    std::vector<model::StatusPage> pages;
    std::vector<model::Incident> incidents;
    std::optional<support::Time> lastRefresh;
};

TEST_F(MenuOfTheWindow, HasTheSeparatorsWithThePartsThatStayInView)
{
    addPage("Acme Cloud", model::StatusPageStatus::operational);
    addIncident("Login errors");
    addIncident("Slow checkout");
    EXPECT_EQ(titles(menu().summary), (Titles{"Down", "-"}));
    EXPECT_EQ(titles(menu().pages), Titles{"Acme Cloud"});
    EXPECT_EQ(titles(menu().incidents), (Titles{"-", "Active Incidents", "Login errors", "Slow checkout"}));
    EXPECT_EQ(titles(menu().commands),
        (Titles{"-", "Refresh", "Open Dashboard", "Check for Updates…", "About Kestrune", "-", "Quit"}));
}

TEST_F(MenuOfTheWindow, WithoutAPageOrAnIncidentHasTheRemarkThatThereIsNoPageAndNoPartForIncidents)
{
    EXPECT_EQ(titles(menu().pages), Titles{"No Status Pages"});
    EXPECT_EQ(titles(menu().incidents), Titles{});
    EXPECT_EQ(titles(menu().commands).front(), "-");
}

TEST_F(MenuOfTheWindow, HasThePanelsRowsInTheirOrderAndTheAboutBoxBeforeQuit)
{
    lastRefresh = support::Time{1'799'999'990s};
    addPage("Acme Cloud", model::StatusPageStatus::operational);
    addPage("Beta", model::StatusPageStatus::down);
    addIncident("Login errors");
    auto rows = all(menu());
    const auto isAbout = [](const WindowMenu::Row& each) { return each.row == aboutRow(); };
    const auto about = std::ranges::find_if(rows, isAbout);
    ASSERT_EQ(rows.end() - about, 3) << "a separator and Quit";
    rows.erase(about);
    std::vector<platform::MenuRow> found;
    for (const auto& each : rows) found.push_back(each.row);
    EXPECT_EQ(found, panelRows());
}

TEST_F(MenuOfTheWindow, BeforeThereAreRowsHasTheAboutBoxAlone)
{
    const auto rows = all(WindowMenu::of({}, ""));
    EXPECT_EQ(titles(rows), Titles{"About Kestrune"});
}

TEST_F(MenuOfTheWindow, TheStateHasItsSymbolAndNoOtherRowHasOne)
{
    addPage("Acme Cloud", model::StatusPageStatus::operational);
    const auto rows = all(menu());
    EXPECT_EQ(rows.front().look, Look::status);
    EXPECT_EQ(rows.front().symbolName, "xmark.circle.fill");
    for (std::size_t at = 1; at < rows.size(); ++at) EXPECT_EQ(rows[at].symbolName, "") << at;
}

TEST_F(MenuOfTheWindow, TheIncidentsAreTextBelowAHeading)
{
    addIncident("Login errors");
    addIncident("Slow checkout");
    std::vector<Look> looks;
    for (const auto& each : menu().incidents) looks.push_back(each.look);
    EXPECT_EQ(looks, (std::vector{Look::plain, Look::heading, Look::text, Look::text}));
}

TEST_F(MenuOfTheWindow, APageEndsInTheWordOfItsStatusAndNothingElseDoes)
{
    addPage("Acme Cloud", model::StatusPageStatus::operational);
    addPage("Beta", model::StatusPageStatus::degraded);
    EXPECT_EQ(menu().pages[0].ending, "Operational");
    EXPECT_EQ(menu().pages[1].ending, "Degraded");
    for (const auto& each : menu().commands) EXPECT_EQ(each.ending, "");
}

}  // namespace

}  // namespace larkspan::core
