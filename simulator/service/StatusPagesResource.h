#pragma once

#include "service/Router.h"

namespace larkspan::simulator {

/// The account's status pages, and the overview of their states.
void addStatusPagesRoutes(Router& router);

}  // namespace larkspan::simulator
