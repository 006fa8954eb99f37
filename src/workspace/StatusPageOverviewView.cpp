#include "workspace/StatusPageOverviewView.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <ranges>
#include <utility>

#include "core/OverallStatus.h"
#include "presentation/text/InPart.h"
#include "presentation/text/NumberText.h"
#include "presentation/text/StatusPagePresentation.h"
#include "presentation/text/WebAddress.h"
#include "presentation/time/RelativeDate.h"

namespace larkspan::workspace {

using presentation::Fact;
using presentation::Headline;
using presentation::StatusPagePresentation;
using presentation::Tone;

namespace {

Headline statusOf(const model::StatusPage& page)
{
    const auto shown = StatusPagePresentation::of(page.status);
    return {.symbol = std::string(shown.symbol),
        .tone = shown.tone,
        .title = std::string(shown.label),
        .details = "Current Status"};
}

std::vector<Fact> informationOf(const model::StatusPage& page, const platform::LocaleText& locale, support::Time now)
{
    std::vector<Fact> facts;
    if (page.url) {
        const auto host = page.url->host();
        facts.push_back({.label = "Public URL",
            .text = host.empty() ? page.url->text() : std::string(host),
            .destination = presentation::isWebAddress(page.url->text()) ? page.url->text() : ""});
    }
    if (page.updatedAt) {
        facts.push_back({.label = "Last Updated",
            .text = presentation::relativeDate(*page.updatedAt, now),
            .explanation = locale.dateOnly(*page.updatedAt) + ", " + locale.timeOnly(*page.updatedAt)});
    }
    if (page.createdAt) facts.push_back({.label = "Created", .text = locale.dateOnly(*page.createdAt)});
    return facts;
}

Fact uptimeOf(const model::StatusPageMetric& metric)
{
    Fact fact{.label = std::string(periodLabel(metric.period)), .text = "Unavailable"};
    if (metric.uptime) {
        fact.text = presentation::fixedText(*metric.uptime, 2) + "%";
        fact.tone = *metric.uptime > 99.0 ? Tone::green : Tone::orange;
    }
    if (metric.incidents) {
        fact.caption = std::to_string(*metric.incidents) + " incident" + (*metric.incidents == 1 ? "" : "s");
    }
    return fact;
}

template <typename Records>
void addRows(const Records& records, std::vector<ActivityRow>& rows)
{
    std::ranges::transform(
        records, std::back_inserter(rows), [](const auto* record) { return ActivityRow::of(*record); });
}

}  // namespace

std::string_view periodLabel(std::string_view period)
{
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 5> labels{{{"1h", "Last Hour"},
        {"24h", "Last 24 Hours"}, {"7d", "Last 7 Days"}, {"30d", "Last 30 Days"}, {"90d", "Last 90 Days"}}};
    const auto found = std::ranges::find(labels, period, [](const auto& row) { return row.first; });
    return found == labels.end() ? period : found->second;
}

std::vector<const model::Incident*> activeIncidents(const model::StatusPage& page, const core::AppStateManager& state)
{
    std::vector<const model::Incident*> active;
    for (const auto& incident : *state.incidents) {
        if (incident.statusPageId == page.id && core::isActive(incident)) active.push_back(&incident);
    }
    return active;
}

std::vector<const model::Maintenance*> activeMaintenances(
    const model::StatusPage& page, const core::AppStateManager& state)
{
    std::vector<const model::Maintenance*> active;
    for (const auto& maintenance : *state.maintenances) {
        if (maintenance.statusPageId == page.id && core::hasStatus(maintenance, "in_progress"))
            active.push_back(&maintenance);
    }
    return active;
}

StatusPageOverviewView StatusPageOverviewView::of(const model::StatusPage& page, const core::AppStateManager& state,
    const platform::LocaleText& locale, support::Time now)
{
    StatusPageOverviewView view{.status = statusOf(page),
        .information = informationOf(page, locale, now),
        .about = presentation::inPart(page.description.value_or(""), presentation::mostOfAText)};
    addRows(activeIncidents(page, state), view.activity);
    addRows(activeMaintenances(page, state), view.activity);
    if (view.activity.empty()) {
        view.quiet = {.symbol = "checkmark.circle", .text = "No active incidents or maintenance"};
    }
    if (page.metrics) {
        std::ranges::transform(
            std::views::take(*page.metrics, presentation::mostLines), std::back_inserter(view.uptime), uptimeOf);
        view.moreUptime = presentation::moreText(page.metrics->size());
    }
    return view;
}

}  // namespace larkspan::workspace
