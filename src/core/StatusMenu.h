#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/OverallStatus.h"
#include "model/records/Incident.h"
#include "model/records/StatusPage.h"
#include "platform/StatusItem.h"
#include "support/Time.h"

namespace larkspan::core {

/// The data that the panel's item is built from.
struct StatusMenuState {
    const std::vector<model::StatusPage>& statusPages;
    const std::vector<model::Incident>& incidents;
    OverallStatus overallStatus = OverallStatus::unknown;
    std::optional<support::Time> lastRefresh;
    bool isReachable = true;
    bool hasRefreshError = false;
    support::Time now;
};

/// The rows of the menu, top to bottom.
std::vector<platform::MenuRow> menuRows(const StatusMenuState& state);

std::string statusTooltip(const StatusMenuState& state);

}  // namespace larkspan::core
