#pragma once

#include "account/Account.h"

namespace larkspan::simulator {

/// Puts a draft with title and dates into the account as a new maintenance and returns it. Pages follow what happens to
/// their maintenances here and below.
Maintenance& schedule(Account& account, Maintenance draft, support::Time now);

/// Somebody changed the maintenance.
void amended(Account& account, Maintenance& maintenance, support::Time now);

/// `maintenance` is one of the account's, and gone afterwards.
void removeMaintenance(Account& account, const Maintenance& maintenance, support::Time now);

/// Lets maintenances start and end that have come to it since this was last called.
void letMaintenancesPass(Account& account, support::Time now);

}  // namespace larkspan::simulator
