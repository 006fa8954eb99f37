#pragma once

#include <vector>

#include "account/Incident.h"
#include "account/Maintenance.h"
#include "account/StatusPage.h"

namespace larkspan::simulator {

/// Incidents of these pages that agree with how each of them stands at `now`: an open one where a page is degraded
/// or down, and resolved ones of the last weeks. As many in all as there are pages, or a few more; newest first.
std::vector<Incident> seededIncidents(const std::vector<StatusPage>& pages, support::Time now);

/// Likewise: one in progress where a page is under maintenance, completed ones of the last weeks, and for each fourth
/// page one that is to come.
std::vector<Maintenance> seededMaintenances(const std::vector<StatusPage>& pages, support::Time now);

}  // namespace larkspan::simulator
