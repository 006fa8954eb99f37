#pragma once

#include "service/Router.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// The orders about incidents and maintenances; see `Control`.
void addEventOrders(Router& router, Service& service);

}  // namespace larkspan::simulator
