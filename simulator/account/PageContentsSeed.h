#pragma once

#include "account/Account.h"

namespace larkspan::simulator {

/// Adds realistic groups, components and monitors to each of the account's pages, always the same for the same pages.
/// Pages after the first hundred have one component with one monitor each, to limit the size of a large account.
void addPageContents(Account& account, support::Time now);

}  // namespace larkspan::simulator
