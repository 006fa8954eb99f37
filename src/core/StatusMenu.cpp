#include "core/StatusMenu.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "presentation/text/NameText.h"
#include "presentation/time/CompactRelativeTimeFormatter.h"
#include "support/LegibleOutside.h"
#include "support/Utf8.h"

namespace larkspan::core {

using model::Incident;
using model::StatusPage;
using model::StatusPageStatus;
using platform::MenuRow;
using presentation::CompactRelativeTimeFormatter;

namespace {

constexpr std::ptrdiff_t shownIncidents = 5;

/// No panel shows more of it, and the menu of the largest account is built within a turn.
std::string rowTitle(std::string_view name)
{
    return presentation::nameText(name, support::bytesOf(name, support::longestOutside));
}

MenuRow information(std::string title)
{
    return {.kind = MenuRow::Kind::information, .title = std::move(title)};
}

MenuRow command(std::string title, MenuRow::Action action, std::string keyEquivalent)
{
    return {.kind = MenuRow::Kind::command,
        .title = std::move(title),
        .action = action,
        .keyEquivalent = std::move(keyEquivalent)};
}

MenuRow::Dot statusDotColor(StatusPageStatus status)
{
    switch (status) {
    case StatusPageStatus::operational: return MenuRow::Dot::green;
    case StatusPageStatus::degraded: return MenuRow::Dot::orange;
    case StatusPageStatus::down: return MenuRow::Dot::red;
    case StatusPageStatus::maintenance: return MenuRow::Dot::blue;
    case StatusPageStatus::unknown: break;
    }
    return MenuRow::Dot::gray;
}

MenuRow pageRow(const StatusPage& page)
{
    return {.kind = MenuRow::Kind::command,
        .title = rowTitle(page.name),
        .action = MenuRow::Action::openStatusPage,
        .representedObject = page.id,
        .dot = statusDotColor(page.status),
        .toolTip = std::string(displayName(page.status))};
}

std::string updatedText(support::Time lastRefresh, support::Time now)
{
    return "Updated " + CompactRelativeTimeFormatter::relativeText(lastRefresh, now);
}

void addSummary(std::vector<MenuRow>& rows, const StatusMenuState& state)
{
    rows.push_back(information(std::string(rawValue(state.overallStatus))));
    if (state.lastRefresh) rows.push_back(information(updatedText(*state.lastRefresh, state.now)));
    if (!state.isReachable) {
        rows.push_back(information("Network Offline"));
    } else if (state.hasRefreshError) {
        rows.push_back(information("Refresh Failed"));
    }
    rows.emplace_back();
}

void addPages(std::vector<MenuRow>& rows, const std::vector<StatusPage>& pages)
{
    if (pages.empty()) rows.push_back(information("No Status Pages"));
    std::ranges::transform(pages, std::back_inserter(rows), pageRow);
    rows.emplace_back();
}

void addActiveIncidents(std::vector<MenuRow>& rows, const std::vector<Incident>& incidents)
{
    std::ptrdiff_t count = 0;
    for (const auto& incident : incidents) {
        if (!isActive(incident)) continue;
        if (count == 0) rows.push_back(information("Active Incidents"));
        if (++count > shownIncidents) break;
        rows.push_back(information(rowTitle(incident.title)));
    }
    if (count > 0) rows.emplace_back();
}

void addCommands(std::vector<MenuRow>& rows)
{
    rows.push_back(command("Refresh", MenuRow::Action::refreshNow, "r"));
    rows.push_back(command("Open Dashboard", MenuRow::Action::openDashboard, "d"));
    rows.push_back(command("Check for Updates…", MenuRow::Action::checkForUpdates, ""));
    rows.emplace_back();
    rows.push_back(command("Quit", MenuRow::Action::quitApp, "q"));
}

}  // namespace

std::vector<MenuRow> menuRows(const StatusMenuState& state)
{
    std::vector<MenuRow> rows;
    rows.reserve(state.statusPages.size() + 16);
    addSummary(rows, state);
    addPages(rows, state.statusPages);
    addActiveIncidents(rows, state.incidents);
    addCommands(rows);
    return rows;
}

std::string statusTooltip(const StatusMenuState& state)
{
    std::string text(statusSummaryText(state.overallStatus));
    if (state.lastRefresh) text += " • " + updatedText(*state.lastRefresh, state.now);
    if (!state.isReachable) {
        text += " • Network offline";
    } else if (state.hasRefreshError) {
        text += " • Refresh failed";
    }
    return text;
}

}  // namespace larkspan::core
