#pragma once

#include <chrono>
#include <string>
#include <variant>
#include <vector>

#include "account/Account.h"

namespace larkspan::simulator {

/// The turns of a story. An incident is identified by its severity; if the page has no such open incident, nothing
/// happens.
namespace story {

struct IncidentOpens {
    std::string severity;
};

struct IncidentIsAcknowledged {
    std::string severity;
};

struct IncidentIsResolved {
    std::string severity;
};

struct MaintenanceIsPlanned {
    std::chrono::milliseconds startsIn;
    std::chrono::milliseconds lasts;
};

}  // namespace story

using StoryTurn = std::variant<story::IncidentOpens, story::IncidentIsAcknowledged, story::IncidentIsResolved,
    story::MaintenanceIsPlanned>;

/// A turn that happens to a page at some time after the story's start.
struct StoryEvent {
    std::chrono::milliseconds at;
    std::string pageId;
    StoryTurn turn;
};

/// The changes of an account over time, repeated with different texts. They are applied when the account is read, by
/// the clock, so no timer is needed.
class Storyline {
public:
    /// `events` must be in order of their times, which are within `period`, the time until the story starts again.
    Storyline(std::vector<StoryEvent> events, std::chrono::milliseconds period);

    /// Ten minutes of an ordinary day for the pages "page-1" to "page-4". A client that polls once a minute sees each
    /// step: incidents are opened, worked on and resolved, maintenances are planned, start and end. At the end "page-2"
    /// is down with two incidents, one minor and one major, and "page-3" is 10 s into a maintenance of 200 s; the
    /// account should start in the same state.
    static Storyline ordinaryDay();

    /// Applies, in order, everything that is due `elapsed` after the start and has not been applied yet.
    void applyEventsUpTo(std::chrono::milliseconds elapsed, support::Time now, Account& account);

private:
    std::chrono::milliseconds nextAt() const;

    std::vector<StoryEvent> events_;
    std::chrono::milliseconds period_;
    std::size_t next_ = 0;
    std::chrono::milliseconds roundStart_{0};
    std::size_t appliedCount_ = 0;
};

}  // namespace larkspan::simulator
