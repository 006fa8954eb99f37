#pragma once

#include <string_view>
#include <vector>

#include "model/StatusPage.h"

namespace larkspan::core {

/// The state of the whole account in one word.
enum class OverallStatus { operational, degraded, down, maintenance, stale, unknown };

/// The word as the user reads it, such as "Operational".
std::string_view rawValue(OverallStatus status);

/// Rolls the account up: the worst page counts, and a failed refresh lets nothing stand but an outage.
OverallStatus rolledUpStatus(const std::vector<model::StatusPage>& pages, bool hasRefreshError);

}  // namespace larkspan::core
