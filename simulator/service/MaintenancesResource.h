#pragma once

#include "service/Router.h"

namespace larkspan::simulator {

/// The account's maintenances.
void addMaintenancesRoutes(Router& router);

}  // namespace larkspan::simulator
