#include "workspace/StatusReports.h"

#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "api/APIError.h"
#include "api/KestruneAPI.h"
#include "core/AccountFetch.h"
#include "model/json/Encoding.h"
#include "support/LocalizedError.h"
#include "workspace/DashboardOperationalSummary.h"

namespace larkspan::workspace {

using core::OverallStatus;
using platform::StatusReport;

namespace {

enum ExitCode { operational = 0, impaired = 1, down = 2, uncertain = 3 };

// An outage that was seen is never hidden by a refresh that failed since.
ExitCode exitCode(const DashboardOperationalSummary& summary)
{
    if (summary.overallStatus == OverallStatus::down) return ExitCode::down;
    if (summary.isStale) return ExitCode::uncertain;
    switch (summary.overallStatus) {
    case OverallStatus::operational: return ExitCode::operational;
    case OverallStatus::degraded:
    case OverallStatus::maintenance: return ExitCode::impaired;
    default: return ExitCode::uncertain;
    }
}

/// The word of a status as scripts compare it: "operational".
std::string code(std::string_view word)
{
    std::string letters(word);
    for (char& letter : letters) {
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    }
    return letters;
}

std::vector<std::string> written(const std::vector<model::StatusPage>& pages)
{
    std::vector<std::string> objects;
    objects.reserve(pages.size());
    for (const auto& page : pages) {
        model::JSONObjectWriter writer;
        writer.write("id", page.id);
        writer.write("name", page.name);
        writer.write("status", code(model::displayName(page.status)));
        objects.push_back(std::move(writer).finish());
    }
    return objects;
}

StatusReport report(const DashboardOperationalSummary& summary, const std::vector<model::StatusPage>& pages,
    std::optional<support::Time> updated, std::string problem)
{
    const auto headline = summary.headline();
    const auto ending = exitCode(summary);
    if (ending == ExitCode::uncertain && problem.empty()) problem = pages.empty() ? "No Status Pages" : headline.title;

    model::JSONObjectWriter writer;
    writer.write("status", code(core::rawValue(summary.overallStatus)));
    writer.write("headline", headline.title);
    // Without a successful fetch every count would be a guess.
    if (updated) {
        writer.write("details", headline.details);
        writer.write("updated", *updated);
        writer.write("statusPages", summary.statusPageCount);
        writer.write("affectedPages", summary.affectedPageCount);
        writer.write("activeIncidents", summary.activeIncidentCount);
        writer.write("activeMaintenances", summary.activeMaintenanceCount);
        writer.write("scheduledMaintenances", summary.scheduledMaintenanceCount);
        writer.writeObjects("pages", written(pages));
    }
    writer.write("stale", summary.isStale);
    if (!problem.empty()) writer.write("problem", problem);
    return {
        .exitCode = ending,
        .text = headline.title + '\n' + (updated ? headline.details + '\n' : ""),
        .json = std::move(writer).finish() + '\n',
        .problem = std::move(problem),
    };
}

std::string problemOf(const std::exception_ptr& failure)
{
    const auto sentence = support::localizedDescription(failure);
    try {
        std::rethrow_exception(failure);
    } catch (const api::APIError& error) {
        if (error.kind() == api::APIError::Case::missingAPIKey)
            return sentence + " A locked keyring is not unlocked for this.";
    } catch (...) {
        return sentence;
    }
    return sentence;
}

}  // namespace

std::optional<StatusReport> statusReport(const core::AppStateManager& state)
{
    const auto& failure = *state.refreshError;
    if (!*state.hasCompletedInitialFetch && !failure) return std::nullopt;
    std::string problem;
    if (failure) {
        problem = support::localizedDescription(failure);
    } else if (!*state.isReachable) {
        problem = "Network offline";
    }
    return report(DashboardOperationalSummary::of(state), *state.statusPages, *state.lastRefresh, std::move(problem));
}

support::Task<StatusReport> fetchedStatusReport(StatusFetchPorts ports)
{
    core::AccountLists lists;
    std::exception_ptr failure;
    try {
        auto fetching = core::fetchAccount(ports.api, ports.main);
        lists = co_await std::move(fetching);
    } catch (...) {
        failure = std::current_exception();
    }
    if (failure) {
        const DashboardOperationalSummary nothingKnown{.overallStatus = OverallStatus::stale, .isStale = true};
        co_return report(nothingKnown, {}, std::nullopt, problemOf(failure));
    }
    co_return report(DashboardOperationalSummary::of(lists), lists.statusPages, ports.clock.now(), "");
}

}  // namespace larkspan::workspace
