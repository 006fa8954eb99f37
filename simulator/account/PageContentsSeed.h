#pragma once

#include "account/Account.h"

namespace larkspan::simulator {

/// Gives each of the account's pages believable groups, components and monitors; the same for the same pages. Behind
/// the first hundred pages each has one component with one monitor, so that a large account does not grow larger still.
void addPageContents(Account& account, support::Time now);

}  // namespace larkspan::simulator
