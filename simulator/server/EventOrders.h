#pragma once

#include "service/Router.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// The part of the control that makes incidents and maintenances happen, as `Control` tells.
void addEventOrders(Router& router, Service& service);

}  // namespace larkspan::simulator
