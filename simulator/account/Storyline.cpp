#include "account/Storyline.h"

#include <algorithm>

#include "account/EventTexts.h"
#include "account/IncidentWorkflow.h"
#include "account/MaintenanceCalendar.h"

namespace larkspan::simulator {

using namespace std::chrono_literals;

namespace {

/// Applies one turn of the story to a page.
struct StoryTurnApplier {
    Account& account;
    const std::string& pageId;
    support::Time when;
    /// Selects the turn's texts.
    std::size_t number;

    void operator()(const story::IncidentOpens& turn) const
    {
        const auto& text = incidentText(number);
        Incident draft;
        draft.title = text.title;
        draft.message = text.message;
        draft.statusPageId = pageId;
        draft.severityName = turn.severity;
        openIncident(account, std::move(draft), when);
    }

    void operator()(const story::IncidentIsAcknowledged& turn) const
    {
        if (auto* incident = openOne(turn.severity)) {
            acknowledge(account, *incident, when);
            appendUpdate(*incident, "**Update:** The cause is known, and we are working on it.", when);
        }
    }

    void operator()(const story::IncidentIsResolved& turn) const
    {
        if (auto* incident = openOne(turn.severity)) {
            appendUpdate(*incident, "**Resolved:** Everything works as it should again.", when);
            resolve(account, *incident, when);
        }
    }

    void operator()(const story::MaintenanceIsPlanned& turn) const
    {
        const auto& text = maintenanceText(number);
        Maintenance draft;
        draft.title = text.title;
        draft.message = text.message;
        draft.statusPageId = pageId;
        draft.startAt = when + turn.startsIn;
        draft.endAt = when + turn.startsIn + turn.lasts;
        schedule(account, std::move(draft), when);
    }

    /// The oldest one, which has been worked on the longest.
    Incident* openOne(const std::string& severity) const
    {
        const auto isMeant = [&](const Incident& incident) {
            return incident.isOpen() && incident.statusPageId == pageId && incident.severityName == severity;
        };
        auto& incidents = account.incidents;
        const auto found = std::find_if(incidents.rbegin(), incidents.rend(), isMeant);
        return found == incidents.rend() ? nullptr : &*found;
    }
};

}  // namespace

Storyline::Storyline(std::vector<StoryEvent> events, std::chrono::milliseconds period)
    : events_(std::move(events))
    , period_(period)
{
}

Storyline Storyline::ordinaryDay()
{
    using namespace story;
    return Storyline(
        {{20s, "page-1", IncidentOpens{"major"}}, {75s, "page-2", IncidentIsAcknowledged{"minor"}},
            {95s, "page-1", IncidentIsAcknowledged{"major"}}, {110s, "page-4", MaintenanceIsPlanned{60s, 110s}},
            {130s, "page-2", IncidentIsResolved{"major"}}, {165s, "page-1", IncidentIsResolved{"major"}},
            {225s, "page-2", IncidentIsResolved{"minor"}}, {320s, "page-3", IncidentOpens{"minor"}},
            {380s, "page-3", IncidentIsAcknowledged{"minor"}}, {440s, "page-3", IncidentIsResolved{"minor"}},
            {470s, "page-3", MaintenanceIsPlanned{120s, 200s}}, {560s, "page-2", IncidentOpens{"minor"}},
            {575s, "page-2", IncidentOpens{"major"}}},
        10min);
}

void Storyline::applyEventsUpTo(std::chrono::milliseconds elapsed, support::Time now, Account& account)
{
    while (!events_.empty() && nextAt() <= elapsed) {
        const auto& event = events_[next_];
        const auto when = now - (elapsed - nextAt());
        updateMaintenancePhases(account, when);
        if (account.findPage(event.pageId)) {
            std::visit(StoryTurnApplier{account, event.pageId, when, appliedCount_}, event.turn);
        }
        ++appliedCount_;
        if (++next_ == events_.size()) {
            next_ = 0;
            roundStart_ += period_;
        }
    }
}

std::chrono::milliseconds Storyline::nextAt() const
{
    return roundStart_ + events_[next_].at;
}

}  // namespace larkspan::simulator
