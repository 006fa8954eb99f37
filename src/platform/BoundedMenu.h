#pragma once

#include <vector>

#include "platform/StatusItem.h"

namespace larkspan::platform {

/// `rows` for a place that cannot show any number of them, such as a panel, to which all of them go in one message: at
/// most the first thousand pages, followed by an information row that says how many more the dashboard has.
std::vector<MenuRow> boundedMenu(const std::vector<MenuRow>& rows);

}  // namespace larkspan::platform
