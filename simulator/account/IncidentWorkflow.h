#pragma once

#include "account/Account.h"

namespace larkspan::simulator {

/// Adds a draft that has at least a title to the account as a new incident in the first state, minor by default, and
/// returns it. These functions also update the state of the incident's page.
Incident& openIncident(Account& account, Incident draft, support::Time now);

/// Does nothing if the incident is acknowledged already.
void acknowledge(Account& account, Incident& incident, support::Time now);

/// Raises the severity by one step, if there is a higher one.
void escalate(Account& account, Incident& incident, support::Time now);

/// Adds a text to the incident's message.
void appendUpdate(Incident& incident, const std::string& text, support::Time now);

/// `state` must be one of the account's. The last one ends the incident, any other one opens it again.
void moveTo(Account& account, Incident& incident, int state, support::Time now);

/// Moves the incident to the account's last state.
void resolve(Account& account, Incident& incident, support::Time now);

/// Moves the incident back to the first state, without its acknowledgement.
void reopen(Account& account, Incident& incident, support::Time now);

/// `incident` must be one of the account's; the reference is invalid afterwards.
void removeIncident(Account& account, const Incident& incident, support::Time now);

}  // namespace larkspan::simulator
