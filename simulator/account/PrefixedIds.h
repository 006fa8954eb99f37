#pragma once

#include <string>

#include "account/Account.h"

namespace larkspan::simulator {

/// Puts `prefix` before the ids of the account's pages and of all that they hold, also where one names another.
void prefixIds(Account& account, const std::string& prefix);

}  // namespace larkspan::simulator
