#pragma once

#include <array>

namespace larkspan::simulator {

class Router;

// The routes of each resource, each in the source file of that name.
void addComponentGroupsRoutes(Router& router);
void addComponentsRoutes(Router& router);
void addIncidentsRoutes(Router& router);
void addMaintenancesRoutes(Router& router);
void addMonitorsRoutes(Router& router);
void addStatusPagesRoutes(Router& router);
void addTeamsRoutes(Router& router);

inline constexpr std::array addRoutesOfEachResource{addComponentGroupsRoutes, addComponentsRoutes, addIncidentsRoutes,
    addMaintenancesRoutes, addMonitorsRoutes, addStatusPagesRoutes, addTeamsRoutes};

}  // namespace larkspan::simulator
