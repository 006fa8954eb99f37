#pragma once

namespace larkspan::simulator {

class Router;

// The routes of each resource, each in the source of its name.

void addIncidentsRoutes(Router& router);
void addMaintenancesRoutes(Router& router);
void addStatusPagesRoutes(Router& router);

}  // namespace larkspan::simulator
