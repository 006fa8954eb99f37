#pragma once

#include <array>

namespace larkspan::simulator {

class Router;

// The routes of each resource, each in the source of its name.
void addIncidentsRoutes(Router& router);
void addMaintenancesRoutes(Router& router);
void addStatusPagesRoutes(Router& router);

inline constexpr std::array addRoutesOfEachResource{addIncidentsRoutes, addMaintenancesRoutes, addStatusPagesRoutes};

}  // namespace larkspan::simulator
