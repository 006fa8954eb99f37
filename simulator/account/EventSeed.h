#pragma once

#include <vector>

#include "account/Incident.h"
#include "account/Maintenance.h"
#include "account/StatusPage.h"

namespace larkspan::simulator {

/// Incidents of these pages that agree with each page's state at `now`: an open one for a page that is degraded or
/// down, and resolved ones of the last weeks. Altogether as many as there are pages, or a few more; newest first.
std::vector<Incident> seededIncidents(const std::vector<StatusPage>& pages, support::Time now);

/// Maintenances in the same way: one in progress for a page under maintenance, completed ones of the last weeks, and a
/// scheduled one for each fourth page.
std::vector<Maintenance> seededMaintenances(const std::vector<StatusPage>& pages, support::Time now);

}  // namespace larkspan::simulator
