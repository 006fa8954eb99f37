#pragma once

#include <chrono>
#include <string>
#include <variant>
#include <vector>

#include "account/Account.h"

namespace larkspan::simulator {

/// What can happen to a page. An incident is known by its severity; where the page has no such open one, nothing
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

/// Something that happens to a page at some time after the story's start.
struct StoryEvent {
    std::chrono::milliseconds at;
    std::string pageId;
    StoryTurn turn;
};

/// What happens to an account as time passes, over and over, worded differently each time. It is told by the clock,
/// when somebody looks, so it needs no timer.
class Storyline {
public:
    /// `events` in order of their times, which lie within `period`, the time until the story starts again.
    Storyline(std::vector<StoryEvent> events, std::chrono::milliseconds period);

    /// Ten minutes of an ordinary day for the pages "page-1" to "page-4". Whoever looks once a minute sees each step:
    /// incidents open, are looked into and resolved, maintenances are planned, start and end. It ends with
    /// "page-2" down in two incidents, one minor and one major, and "page-3" 10 s into a maintenance of 200 s, and it
    /// starts best so.
    static Storyline ordinaryDay();

    /// Lets everything happen that is due `elapsed` after the start and has not happened yet, in order.
    void tellUpTo(std::chrono::milliseconds elapsed, support::Time now, Account& account);

private:
    std::chrono::milliseconds nextAt() const;

    std::vector<StoryEvent> events_;
    std::chrono::milliseconds period_;
    std::size_t next_ = 0;
    std::chrono::milliseconds roundStart_{0};
    std::size_t told_ = 0;
};

}  // namespace larkspan::simulator
