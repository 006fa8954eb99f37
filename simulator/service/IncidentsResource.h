#pragma once

#include "service/Router.h"

namespace larkspan::simulator {

/// The account's incidents, what is done to them, and the stages of their workflow.
void addIncidentsRoutes(Router& router);

}  // namespace larkspan::simulator
