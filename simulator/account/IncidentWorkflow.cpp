#include "account/IncidentWorkflow.h"

#include <algorithm>

namespace larkspan::simulator {

namespace {

int firstState(const Account& account)
{
    return std::ranges::min(account.incidentStates, {}, &IncidentState::sortOrder).id;
}

int lastState(const Account& account)
{
    return std::ranges::max(account.incidentStates, {}, &IncidentState::sortOrder).id;
}

}  // namespace

Incident& openIncident(Account& account, Incident draft, support::Time now)
{
    draft.id = account.issueId("incident-");
    draft.createdAt = now;
    draft.updatedAt = now;
    draft.stateId = firstState(account);
    if (!draft.severityName) draft.severityName = "minor";
    const auto placed = account.incidents.insert(account.incidents.begin(), std::move(draft));
    account.followEvents(placed->statusPageId, now);
    return *placed;
}

void acknowledge(Account& account, Incident& incident, support::Time now)
{
    if (incident.acknowledgedAt) return;
    incident.acknowledgedAt = now;
    incident.updatedAt = now;
    account.followEvents(incident.statusPageId, now);
}

void escalate(Account& account, Incident& incident, support::Time now)
{
    incident.severityName = incident.severityName == "minor" ? "major" : "critical";
    incident.updatedAt = now;
    account.followEvents(incident.statusPageId, now);
}

void appendUpdate(Incident& incident, const std::string& text, support::Time now)
{
    const auto before = incident.message.value_or("");
    incident.message = before.empty() ? text : before + "\n\n" + text;
    incident.updatedAt = now;
}

void moveTo(Account& account, Incident& incident, int state, support::Time now)
{
    incident.stateId = state;
    incident.updatedAt = now;
    if (state != lastState(account)) {
        incident.endedAt.reset();
    } else if (incident.isOpen()) {
        incident.endedAt = now;
    }
    account.followEvents(incident.statusPageId, now);
}

void resolve(Account& account, Incident& incident, support::Time now)
{
    moveTo(account, incident, lastState(account), now);
}

void reopen(Account& account, Incident& incident, support::Time now)
{
    incident.acknowledgedAt.reset();
    moveTo(account, incident, firstState(account), now);
}

void removeIncident(Account& account, const Incident& incident, support::Time now)
{
    const bool wasOpen = incident.isOpen();
    const auto page = incident.statusPageId;
    account.incidents.erase(account.incidents.begin() + (&incident - account.incidents.data()));
    if (wasOpen) account.followEvents(page, now);
}

}  // namespace larkspan::simulator
