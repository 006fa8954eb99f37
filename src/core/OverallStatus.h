#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "model/records/Incident.h"
#include "model/records/Maintenance.h"
#include "model/records/StatusPage.h"

namespace larkspan::core {

/// The state of the whole account.
enum class OverallStatus { operational, degraded, down, maintenance, stale, unknown };

/// The status in the user's words, such as "Operational".
std::string_view rawValue(OverallStatus status);

/// The status whose raw value is exactly `text`; empty if there is none.
std::optional<OverallStatus> overallStatusOf(std::string_view text);

/// The symbol of the status, distinct by its shape.
std::string_view statusSymbolName(OverallStatus status);

/// The status as a short sentence, such as "All systems operational".
std::string_view statusSummaryText(OverallStatus status);

/// Whether an incident is still open, acknowledged or not.
bool isActive(const model::Incident& incident);

/// Whether a maintenance is scheduled or in progress; ignores the case of letters.
bool isOpen(const model::Maintenance& maintenance);

/// Whether the status of a maintenance is `status`; ignores the case of letters.
bool hasStatus(const model::Maintenance& maintenance, std::string_view status);

/// The status of the account: the worst of its pages, incidents and maintenances. After a failed refresh, it is `stale`
/// unless it is an outage.
OverallStatus rolledUpStatus(const std::vector<model::StatusPage>& pages, const std::vector<model::Incident>& incidents,
    const std::vector<model::Maintenance>& maintenances, bool hasRefreshError);

}  // namespace larkspan::core
