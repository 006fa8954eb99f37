#include "core/OverallStatus.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "support/IgnoringCase.h"

namespace larkspan::core {

using model::Incident;
using model::IncidentStatus;
using model::Maintenance;
using model::StatusPage;
using model::StatusPageStatus;

namespace {

struct Texts {
    std::string_view rawValue;
    std::string_view symbolName;
    std::string_view summary;
};

/// In the order of the enumeration's cases.
constexpr std::array<Texts, 6> texts{{
    {"Operational", "checkmark.circle.fill", "All systems operational"},
    {"Degraded", "exclamationmark.triangle.fill", "Some systems degraded"},
    {"Down", "xmark.circle.fill", "Some systems down"},
    {"Maintenance", "wrench.and.screwdriver.fill", "Maintenance in progress"},
    {"Stale", "exclamationmark.icloud.fill", "Status stale, refresh failed"},
    {"Unknown", "questionmark.circle", "Status unknown"},
}};

const Texts& textsOf(OverallStatus status)
{
    return texts[static_cast<std::size_t>(status)];
}

template <typename Records, typename Value, typename Field>
bool anyHas(const Records& records, Field field, Value value)
{
    return std::ranges::find(records, value, field) != records.end();
}

OverallStatus worstStatus(const std::vector<StatusPage>& pages, const std::vector<Incident>& incidents,
    const std::vector<Maintenance>& maintenances)
{
    const auto page = [&pages](StatusPageStatus status) { return anyHas(pages, &StatusPage::status, status); };
    const auto incident = [&incidents](IncidentStatus status) { return anyHas(incidents, &Incident::status, status); };

    if (page(StatusPageStatus::down) || incident(IncidentStatus::active)) return OverallStatus::down;
    if (page(StatusPageStatus::degraded) || incident(IncidentStatus::acknowledged)) return OverallStatus::degraded;
    if (page(StatusPageStatus::maintenance) || std::ranges::any_of(maintenances, isOpen))
        return OverallStatus::maintenance;
    if (page(StatusPageStatus::operational)) return OverallStatus::operational;
    return OverallStatus::unknown;
}

}  // namespace

std::string_view rawValue(OverallStatus status)
{
    return textsOf(status).rawValue;
}

std::optional<OverallStatus> overallStatusOf(std::string_view text)
{
    const auto* const found = std::ranges::find(texts, text, &Texts::rawValue);
    if (found == texts.end()) return std::nullopt;
    return static_cast<OverallStatus>(found - texts.begin());
}

std::string_view statusSymbolName(OverallStatus status)
{
    return textsOf(status).symbolName;
}

std::string_view statusSummaryText(OverallStatus status)
{
    return textsOf(status).summary;
}

bool isActive(const Incident& incident)
{
    return incident.status == IncidentStatus::active || incident.status == IncidentStatus::acknowledged;
}

bool hasStatus(const Maintenance& maintenance, std::string_view status)
{
    return support::equalsIgnoringCase(maintenance.status, status);
}

bool isOpen(const Maintenance& maintenance)
{
    return hasStatus(maintenance, "scheduled") || hasStatus(maintenance, "in_progress");
}

OverallStatus rolledUpStatus(const std::vector<StatusPage>& pages, const std::vector<Incident>& incidents,
    const std::vector<Maintenance>& maintenances, bool hasRefreshError)
{
    if (pages.empty()) return hasRefreshError ? OverallStatus::stale : OverallStatus::unknown;
    const auto worst = worstStatus(pages, incidents, maintenances);
    return hasRefreshError && worst != OverallStatus::down ? OverallStatus::stale : worst;
}

}  // namespace larkspan::core
