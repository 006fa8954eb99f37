#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "model/records/Incident.h"
#include "model/records/Maintenance.h"
#include "model/records/StatusPage.h"

namespace larkspan::core {

/// The state of the whole account in one word.
enum class OverallStatus { operational, degraded, down, maintenance, stale, unknown };

/// The word as the user reads it, such as "Operational".
std::string_view rawValue(OverallStatus status);

/// The status whose raw value is `text`, exactly; absent if there is none.
std::optional<OverallStatus> overallStatusOf(std::string_view text);

/// The symbol that tells the status by its shape.
std::string_view statusSymbolName(OverallStatus status);

/// The status as a short sentence, such as "All systems operational".
std::string_view statusSummaryText(OverallStatus status);

/// Whether an incident still runs, acknowledged or not.
bool isActive(const model::Incident& incident);

/// Whether a maintenance still concerns the reader: scheduled or in progress, in any case of letters.
bool isOpen(const model::Maintenance& maintenance);

/// Whether the status of a maintenance is `status`, in any case of letters.
bool hasStatus(const model::Maintenance& maintenance, std::string_view status);

/// Rolls the account up: the worst of its pages, incidents and maintenances counts, and a failed refresh lets
/// nothing stand but an outage.
OverallStatus rolledUpStatus(const std::vector<model::StatusPage>& pages, const std::vector<model::Incident>& incidents,
    const std::vector<model::Maintenance>& maintenances, bool hasRefreshError);

}  // namespace larkspan::core
