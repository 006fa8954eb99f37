#pragma once

#include <string>

#include "account/Account.h"

namespace larkspan::simulator {

/// Prepends `prefix` to the ids of the account's pages and all their records, also where one record refers to another.
void prefixIds(Account& account, const std::string& prefix);

}  // namespace larkspan::simulator
