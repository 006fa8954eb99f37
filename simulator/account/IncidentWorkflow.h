#pragma once

#include "account/Account.h"

namespace larkspan::simulator {

/// Puts a draft with title and whatever else it has into the account as a new incident in the first state, minor unless
/// it says otherwise, and returns it. Pages follow what happens to their incidents here and below.
Incident& openIncident(Account& account, Incident draft, support::Time now);

/// Who looks into it first counts; a second time changes nothing.
void acknowledge(Account& account, Incident& incident, support::Time now);

/// To the next severity, where there is one.
void escalate(Account& account, Incident& incident, support::Time now);

/// Adds a text to the incident's message.
void appendUpdate(Incident& incident, const std::string& text, support::Time now);

/// `state` is one of the account's. The last of them ends the incident, any other opens it again.
void moveTo(Account& account, Incident& incident, int state, support::Time now);

/// To the account's last state.
void resolve(Account& account, Incident& incident, support::Time now);

/// Back to the first state, as if nobody had looked into it.
void reopen(Account& account, Incident& incident, support::Time now);

/// `incident` is one of the account's, and gone afterwards.
void removeIncident(Account& account, const Incident& incident, support::Time now);

}  // namespace larkspan::simulator
