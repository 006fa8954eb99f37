#pragma once

#include "account/Account.h"

namespace larkspan::simulator {

/// Adds a draft with title and dates to the account as a new maintenance and returns it. These functions also update
/// the state of the maintenance's page.
Maintenance& schedule(Account& account, Maintenance draft, support::Time now);

/// Call it after the maintenance was changed.
void amended(Account& account, Maintenance& maintenance, support::Time now);

/// `maintenance` must be one of the account's; the reference is invalid afterwards.
void removeMaintenance(Account& account, const Maintenance& maintenance, support::Time now);

/// Starts and ends the maintenances whose time has come since the last call.
void updateMaintenancePhases(Account& account, support::Time now);

}  // namespace larkspan::simulator
