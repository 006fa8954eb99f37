#pragma once

#include <string>
#include <vector>

#include "Order.h"
#include "stage/Cells.h"

namespace larkspan::campaign {

/// Each order under some faults, while the window closes, the key changes or the program quits.
std::vector<Cell> interruptedOrders();

}  // namespace larkspan::campaign
